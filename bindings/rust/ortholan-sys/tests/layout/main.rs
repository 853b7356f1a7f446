//! Sizes, offsets and constants as a C compiler has them by the installed headers.

use std::env;
use std::fs;
use std::process::Command;

macro_rules! size {
    ($structure:ty) => {
        std::mem::size_of::<$structure>() as u64
    };
}
macro_rules! offset {
    ($structure:ty, $member:ident) => {{
        let room = std::mem::MaybeUninit::<$structure>::uninit();
        let start = room.as_ptr();
        // Nothing is read: the place of a member in room for the structure.
        unsafe { std::ptr::addr_of!((*start).$member) as u64 - start as u64 }
    }};
}

#[rustfmt::skip]
mod table;

fn by_the_compiler(expressions: &[&str]) -> Vec<u64> {
    let directory = env::temp_dir().join(format!("ortholan-layout-{}", std::process::id()));
    fs::create_dir_all(&directory).unwrap();
    let (source, program) = (directory.join("layout.c"), directory.join("layout"));
    let lines: String = expressions
        .iter()
        .map(|each| format!("  printf(\"%llu\\n\", (unsigned long long)({each}));\n"))
        .collect();
    let includes = "#include <ortholan/strict.h>\n#include <stddef.h>\n#include <stdio.h>\n";
    fs::write(&source, format!("{includes}int main(void) {{\n{lines}  return 0;\n}}\n")).unwrap();
    let flags = Command::new("pkg-config").args(["--cflags", "ortholan"]).output().unwrap();
    let compiled = Command::new("cc")
        .args(String::from_utf8(flags.stdout).unwrap().split_whitespace())
        .arg("-o")
        .args([&program, &source])
        .status()
        .unwrap();
    assert!(compiled.success());
    let output = Command::new(&program).output().unwrap();
    fs::remove_dir_all(&directory).unwrap();
    let text = String::from_utf8(output.stdout).unwrap();
    text.lines().map(|line| line.parse().unwrap()).collect()
}

#[test]
fn declarations_are_those_of_the_headers() {
    let table = table::layout();
    let expressions: Vec<_> = table.iter().map(|row| row.0).collect();
    let compiled = by_the_compiler(&expressions);
    assert_eq!(table.len(), compiled.len());
    for ((expression, here), there) in table.iter().zip(compiled) {
        assert_eq!(*here, there, "{expression}");
    }
}
