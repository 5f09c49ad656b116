// SPDX-License-Identifier: MIT

//! Which columns of a file or table fit those of an application.
//!
//! [`propose`] answers from the names alone, without a window. `show`, by the feature `dialogs`,
//! opens the dialog in which a person corrects the proposal.
//!
//! ```
//! use columnimport::{propose, Options, Origin, Source};
//!
//! let source = Source::Table(&[b"BHID", b"Au g/t"]);
//! let result = propose(&["holename".into(), "dip".into()], &source, &Options::default())?;
//! let hole = result.matches[0].as_ref().unwrap();
//! assert_eq!((hole.text(), hole.field, hole.origin), ("BHID".into(), Some(0), Origin::Synonym));
//! assert_eq!(result.matches[1], None);
//! # Ok::<(), columnimport::Error>(())
//! ```
//!
//! The names are those of the module for Python; what is called `Result` there is [`ImportResult`]
//! here. Names of a source are bytes of any encoding.

mod c;
#[cfg(feature = "dialogs")]
mod dialogs;
mod import;

use std::borrow::Cow;
use std::ffi::CStr;
use std::fmt;

#[cfg(feature = "dialogs")]
pub use dialogs::{show, Window};
use import::Import;

/// What the library could not do, with a sentence in English.
#[derive(Clone, Debug, PartialEq, Eq)]
#[non_exhaustive]
pub enum Error {
    /// There is no display that a dialog could be shown on.
    NoDisplay(String),
    /// Another dialog of the library is open in this process.
    AlreadyOpen(String),
    /// An argument is wrong.
    WrongUse(String),
    /// There is no memory, or something unforeseen happened.
    Failed(String),
}

impl fmt::Display for Error {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        match self {
            Error::NoDisplay(sentence)
            | Error::AlreadyOpen(sentence)
            | Error::WrongUse(sentence)
            | Error::Failed(sentence) => formatter.write_str(sentence),
        }
    }
}

impl std::error::Error for Error {}

/// A column of the application.
///
/// ```
/// use columnimport::Column;
/// let column = Column { alternatives: vec!["RL".into()], ..Column::from("elevation") };
/// # let _ = column;
/// ```
#[derive(Clone, Debug, PartialEq, Eq)]
pub struct Column {
    pub name: String,
    /// Other words for it, which count like synonyms.
    pub alternatives: Vec<String>,
    /// Whether the dialog asks back once, before it takes OK, if it has no match.
    pub required: bool,
    /// Whether it takes a name that only resembles its own.
    pub similar: bool,
    /// The name that it was matched to by an earlier run.
    pub saved: Option<Vec<u8>>,
}

impl From<&str> for Column {
    fn from(name: &str) -> Column {
        Column {
            name: name.to_string(),
            alternatives: Vec::new(),
            required: false,
            similar: true,
            saved: None,
        }
    }
}

/// What the columns are matched to.
#[derive(Clone, Copy, Debug)]
pub enum Source<'a> {
    /// The path of a delimited file, of which the first line is read.
    File(&'a str),
    /// The names of a table's columns.
    Table(&'a [&'a [u8]]),
}

/// How a file is read, and the title of a dialog.
#[derive(Clone, Debug)]
pub struct Options {
    pub delimiter: u8,
    /// Whether the first line holds titles. Without, columns go by their positions.
    pub titles: bool,
    pub title: String,
}

impl Default for Options {
    fn default() -> Options {
        Options {
            delimiter: b',',
            titles: true,
            title: String::new(),
        }
    }
}

/// How a column of the application came by its match.
#[derive(Clone, Copy, Debug, PartialEq, Eq)]
#[non_exhaustive]
pub enum Origin {
    /// The names are the same, but for capitals and punctuation.
    Same,
    /// The library knows them as synonyms.
    Synonym,
    /// It is one of the column's alternatives.
    Alternative,
    /// The names only resemble each other: a guess.
    Similar,
    /// There are no titles, and columns are paired in their order.
    InOrder,
    /// It has the name that was saved.
    Saved,
    /// The person chose it.
    ByHand,
    /// The person dropped a text that names no column of the source.
    Foreign,
    /// One that a newer library has.
    Other,
}

impl Origin {
    fn of(value: i32) -> Origin {
        use Origin::*;
        let known = [
            Same,
            Synonym,
            Alternative,
            Similar,
            InOrder,
            Saved,
            ByHand,
            Foreign,
        ];
        usize::try_from(value - 1)
            .ok()
            .and_then(|i| known.get(i).copied())
            .unwrap_or(Other)
    }
}

/// A column of the source.
#[derive(Clone, Debug, PartialEq)]
pub struct Match {
    pub name: Vec<u8>,
    /// Its position as the dialog counts, from 0; none of a text that a person dropped.
    pub position: Option<usize>,
    /// Its field in each row for a reader that honours double quotes, from 0, if that can be told.
    pub field: Option<usize>,
    pub origin: Origin,
    /// How much the two names of a guess have in common.
    pub score: Option<f64>,
}

impl Match {
    /// The name, with a replacement character for what is no UTF-8.
    pub fn text(&self) -> Cow<'_, str> {
        String::from_utf8_lossy(&self.name)
    }
}

/// What a proposal or a dialog ended with.
#[derive(Clone, Debug, PartialEq)]
pub struct ImportResult {
    /// One entry for each column that was asked for.
    pub matches: Vec<Option<Match>>,
    /// Whether the person pressed OK; true of a proposal.
    pub accepted: bool,
    /// As it was left.
    pub delimiter: u8,
    /// As it was left.
    pub titles: bool,
    pub source_columns: Vec<Vec<u8>>,
    /// The system's reason if a file could not be read.
    pub problem: Option<String>,
}

/// The version of the library that is loaded.
pub fn version() -> String {
    unsafe { CStr::from_ptr(c::columnimport_version()) }
        .to_string_lossy()
        .into_owned()
}

/// The delimiter that the first line of a file was likely written with, if one is likely.
pub fn likely_delimiter(path: &str) -> Result<Option<u8>, Error> {
    let import = Import::new()?;
    import.set_file(path)?;
    Ok(u8::try_from(unsafe { c::columnimport_likely_delimiter(import.pointer()) }).ok())
}

/// Proposes a column of `source` for each of `columns`. May be called on any thread.
///
/// A file that can't be read gives no matches, and `problem` says why.
pub fn propose(
    columns: &[Column],
    source: &Source,
    options: &Options,
) -> Result<ImportResult, Error> {
    let import = Import::new()?;
    import.fill(columns, source, options.delimiter, options.titles)?;
    import.require(
        unsafe { c::columnimport_propose(import.pointer()) },
        &[c::OK],
    )?;
    Ok(import.read(columns, true))
}
