// SPDX-License-Identifier: MIT

//! Where the library is, if it is not where the linker looks by itself.

fn main() {
    println!("cargo:rerun-if-env-changed=COLUMNIMPORT_LIBRARY_FOLDER");
    if let Ok(folder) = std::env::var("COLUMNIMPORT_LIBRARY_FOLDER") {
        println!("cargo:rustc-link-search=native={}", folder);
    }
}
