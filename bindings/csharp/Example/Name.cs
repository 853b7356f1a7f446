using System;
using Ortholan;

/// <summary>Prints the DER of names' texts, and that as text again: name 'CN=Alpha,O=Org'.</summary>
internal static class Program
{
    private static int Main(string[] texts)
    {
        try
        {
            foreach (string text in texts)
            {
                Name name = Name.Parse(text);
                Console.WriteLine(BitConverter.ToString(name.ToDer()).Replace("-", ""));
                Console.WriteLine(name);
            }
            return 0;
        }
        catch (RefusedException refused)
        {
            Console.Error.WriteLine(refused.Message);
            return 1;
        }
    }
}
