// Prints the library's version and a name text in canonical order:
//
//   consumer "CN=Alpha, O=Org, C=RU"
#include <ortholan/ortholan.h>

#include <iostream>
#include <list>
#include <string>

#if ORTHOLAN_VERSION < ORTHOLAN_MAKE_VERSION(1, 0, 0)
#error "written for version 1"
#endif

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Ortholan::X509Name name;
  std::string text;
  if (!name.TrySetBy(argv[1], 0, true) || !name.TryGetX500String(text, 3)) return 1;

  // Objects, containers and exceptions have to cross the library's border as well.
  std::list<Ortholan::SimpleRDN> pairs;
  name.GetSimpleRDNList(pairs, false);
  Ortholan::CertExtensionList extensions;
  extensions.Update(Ortholan::CertExtension());
  try {
    Ortholan::ASNTPutSequence({}, 4);
    return 3;
  } catch (const Ortholan::XZEPStatus& failure) {
    if (failure.GetStatus() != 28) return 4;
  }
  std::cout << ORTHOLAN_VERSION_STRING << ' ' << text << ' ' << pairs.size() << ' '
            << extensions.size() << '\n';
  return 0;
}
