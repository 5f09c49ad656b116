// SPDX-License-Identifier: MIT

use columnimport::{likely_delimiter, propose, Options, Source};

fn main() -> Result<(), Box<dyn std::error::Error>> {
    let path = std::env::args().nth(1).ok_or("minimal_host FILE")?;
    let columns = ["holename".into(), "easting".into()];
    let delimiter = likely_delimiter(&path)?.unwrap_or(b',');
    let options = Options {
        delimiter,
        ..Options::default()
    };
    let result = propose(&columns, &Source::File(&path), &options)?;
    for (column, found) in columns.iter().zip(&result.matches) {
        match found {
            Some(found) => println!(
                "{} <- {}, field {:?}",
                column.name,
                found.text(),
                found.field
            ),
            None => println!("{} has no match", column.name),
        }
    }
    Ok(())
}
