//! Finds the library: ORTHOLAN_LIB_DIR names the directory of libortholan, else pkg-config tells.
//! With ORTHOLAN_STATIC set the static library is linked, and programs need no other file.

use std::env;
use std::process::Command;

fn pkg_config(arguments: &[&str]) -> Result<String, String> {
    let program = env::var("PKG_CONFIG").unwrap_or_else(|_| "pkg-config".into());
    let output = Command::new(&program)
        .args(arguments)
        .output()
        .map_err(|error| format!("{program}: {error}"))?;
    if output.status.success() {
        Ok(String::from_utf8_lossy(&output.stdout).into_owned())
    } else {
        Err(String::from_utf8_lossy(&output.stderr).into_owned())
    }
}

fn library_directory() -> Result<Option<String>, String> {
    if let Ok(directory) = env::var("ORTHOLAN_LIB_DIR") {
        return Ok(Some(directory));
    }
    let flags = pkg_config(&["--libs-only-L", "ortholan"])?;
    let directory = flags.split_whitespace().find_map(|flag| flag.strip_prefix("-L"));
    Ok(directory.map(str::to_owned))
}

fn main() {
    for variable in ["ORTHOLAN_LIB_DIR", "ORTHOLAN_STATIC", "PKG_CONFIG", "PKG_CONFIG_PATH"] {
        println!("cargo:rerun-if-env-changed={variable}");
    }
    match library_directory() {
        Ok(Some(directory)) => println!("cargo:rustc-link-search=native={directory}"),
        Ok(None) => {}
        Err(error) => {
            eprintln!("libortholan is not found; set ORTHOLAN_LIB_DIR or PKG_CONFIG_PATH: {error}");
            std::process::exit(1);
        }
    }
    if env::var_os("ORTHOLAN_STATIC").is_some() {
        println!("cargo:rustc-link-lib=static=ortholan");
        println!("cargo:rustc-link-lib=stdc++");
    } else {
        println!("cargo:rustc-link-lib=ortholan");
    }
}
