//! Prints the DER of a name's text, and that as text again: `name 'CN=Alpha,O=Org'`.

use ortholan::Name;

fn main() -> Result<(), ortholan::Refusal> {
    for text in std::env::args().skip(1) {
        let name: Name = text.parse()?;
        let digits: String = name.der().iter().map(|octet| format!("{octet:02X}")).collect();
        println!("{digits}\n{name}");
    }
    Ok(())
}
