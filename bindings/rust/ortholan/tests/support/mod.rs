//! Reads the files of tests/data/vectors/: CONTRIBUTING.md tells their form.

use std::collections::HashMap;
use std::fs;
use std::path::PathBuf;

pub fn data(file: &str) -> Vec<u8> {
    let path = PathBuf::from(env!("CARGO_MANIFEST_DIR")).join("../../../tests/data").join(file);
    fs::read(path).unwrap()
}

pub struct Row {
    pub place: String,
    cells: HashMap<String, String>,
}

impl Row {
    pub fn text(&self, column: &str) -> &str {
        self.cells.get(column).map_or("", String::as_str)
    }
    pub fn octets(&self, column: &str) -> Vec<u8> {
        octets(self.text(column))
    }
}

pub fn rows(file: &str) -> Vec<Row> {
    let text = String::from_utf8(data(&format!("vectors/{file}"))).unwrap();
    let mut lines = text.split('\n').enumerate();
    let mut lines = lines.by_ref().filter(|(_, line)| !line.is_empty() && !line.starts_with('#'));
    let columns: Vec<_> = lines.next().unwrap().1.split('\t').map(str::to_owned).collect();
    let row = |(number, line): (usize, &str)| Row {
        place: format!("{file}:{}", number + 1),
        cells: columns.iter().cloned().zip(line.split('\t').map(cell)).collect(),
    };
    let rows: Vec<_> = lines.map(row).collect();
    assert!(!rows.is_empty(), "{file}: no rows");
    rows
}

/// A cell that begins with a quotation mark is a JSON string.
fn cell(cell: &str) -> String {
    let inner = match cell.strip_prefix('"').and_then(|rest| rest.strip_suffix('"')) {
        Some(inner) => inner,
        None => return cell.to_owned(),
    };
    let (mut units, mut characters) = (Vec::new(), inner.chars());
    while let Some(character) = characters.next() {
        if character != '\\' {
            units.extend(character.encode_utf16(&mut [0; 2]).iter());
            continue;
        }
        units.push(match characters.next().unwrap() {
            'n' => 0x0A,
            'r' => 0x0D,
            't' => 0x09,
            'b' => 0x08,
            'f' => 0x0C,
            'u' => {
                let digits: String = characters.by_ref().take(4).collect();
                u16::from_str_radix(&digits, 16).unwrap()
            }
            other => other as u16,
        });
    }
    String::from_utf16(&units).unwrap()
}

pub fn octets(digits: &str) -> Vec<u8> {
    assert!(digits.is_ascii() && digits.len() % 2 == 0, "{digits}");
    let pairs = (0..digits.len()).step_by(2);
    pairs.map(|at| u8::from_str_radix(&digits[at..at + 2], 16).unwrap()).collect()
}
