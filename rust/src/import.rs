// SPDX-License-Identifier: MIT

//! One import of the library: made, filled, run, read and freed.

use std::ffi::{CStr, CString};
use std::os::raw::c_char;
use std::ptr::null;

use crate::c;
use crate::{Column, Error, ImportResult, Match, Origin, Source};

pub struct Import(*mut c::Import);

impl Drop for Import {
    fn drop(&mut self) {
        unsafe { c::columnimport_free(self.0) }
    }
}

/// A text for the library, whose texts end at a zero.
fn text(words: &str) -> Result<CString, Error> {
    CString::new(words).map_err(|_| Error::WrongUse(format!("{:?} holds a zero", words)))
}

/// A number that is none where it is negative.
fn number(value: i32) -> Option<usize> {
    usize::try_from(value).ok()
}

impl Import {
    pub fn new() -> Result<Import, Error> {
        let import = unsafe { c::columnimport_new() };
        if import.is_null() {
            return Err(Error::Failed("There is not enough memory.".to_string()));
        }
        Ok(Import(import))
    }

    pub fn pointer(&self) -> *mut c::Import {
        self.0
    }

    /// The error of an outcome, if it is one.
    pub fn require(&self, outcome: i32, allowed: &[i32]) -> Result<(), Error> {
        if allowed.contains(&outcome) {
            return Ok(());
        }
        let message = unsafe { CStr::from_ptr(c::columnimport_message(self.0)) };
        let message = message.to_string_lossy().into_owned();
        Err(match outcome {
            c::NO_DISPLAY => Error::NoDisplay(message),
            c::ALREADY_OPEN => Error::AlreadyOpen(message),
            c::WRONG_USE | c::INVALID => Error::WrongUse(message),
            _ => Error::Failed(message),
        })
    }

    fn done(&self, outcome: i32) -> Result<(), Error> {
        self.require(outcome, &[c::OK])
    }

    pub fn fill(
        &self,
        columns: &[Column],
        source: &Source,
        delimiter: u8,
        titles: bool,
    ) -> Result<(), Error> {
        for (column, number) in columns.iter().zip(0..) {
            let name = text(&column.name)?;
            self.done(unsafe { c::columnimport_add_column(self.0, name.as_ptr()) })?;
            for word in &column.alternatives {
                let word = text(word)?;
                self.done(unsafe {
                    c::columnimport_add_alternative(self.0, number, word.as_ptr())
                })?;
            }
            self.done(unsafe {
                c::columnimport_set_required(self.0, number, column.required.into())
            })?;
            self.done(unsafe {
                c::columnimport_set_similar(self.0, number, column.similar.into())
            })?;
            if let Some(saved) = &column.saved {
                let (name, length) = (saved.as_ptr() as *const c_char, saved.len() as i64);
                self.done(unsafe {
                    c::columnimport_set_saved_match(self.0, number, name, length)
                })?;
            }
        }
        match source {
            Source::File(path) => self.set_file(path)?,
            Source::Table(names) => self.set_table(names)?,
        }
        self.done(unsafe { c::columnimport_set_delimiter(self.0, delimiter as c_char) })?;
        self.done(unsafe { c::columnimport_set_first_line_holds_titles(self.0, titles.into()) })
    }

    pub fn set_file(&self, path: &str) -> Result<(), Error> {
        let path = text(path)?;
        self.done(unsafe { c::columnimport_set_file(self.0, path.as_ptr()) })
    }

    fn set_table(&self, names: &[&[u8]]) -> Result<(), Error> {
        let count = i32::try_from(names.len())
            .map_err(|_| Error::WrongUse("There are too many columns.".to_string()))?;
        let pointers: Vec<_> = names.iter().map(|n| n.as_ptr() as *const c_char).collect();
        let lengths: Vec<_> = names.iter().map(|name| name.len() as i64).collect();
        self.done(unsafe {
            c::columnimport_set_table(self.0, pointers.as_ptr(), lengths.as_ptr(), count)
        })
    }

    /// A name that a function gives with its length, if it gives one.
    fn name(
        &self,
        function: unsafe extern "C" fn(*mut c::Import, i32, *mut i64) -> *const c_char,
        column: i32,
    ) -> Option<Vec<u8>> {
        let mut length = 0;
        let bytes = unsafe { function(self.0, column, &mut length) };
        if bytes == null() {
            return None;
        }
        Some(unsafe { std::slice::from_raw_parts(bytes as *const u8, length as usize) }.to_vec())
    }

    fn match_of(&self, column: i32) -> Option<Match> {
        let name = self.name(c::columnimport_match_name, column)?;
        let score = unsafe { c::columnimport_match_score(self.0, column) };
        Some(Match {
            name,
            position: number(unsafe { c::columnimport_match_position(self.0, column) }),
            field: number(unsafe { c::columnimport_match_field(self.0, column) }),
            origin: Origin::of(unsafe { c::columnimport_match_origin(self.0, column) }),
            score: if score < 0.0 { None } else { Some(score) },
        })
    }

    pub fn read(&self, columns: &[Column], accepted: bool) -> ImportResult {
        let problem = unsafe { c::columnimport_file_problem(self.0) };
        let count = unsafe { c::columnimport_source_column_count(self.0) };
        ImportResult {
            matches: columns
                .iter()
                .zip(0..)
                .map(|(_, number)| self.match_of(number))
                .collect(),
            accepted,
            delimiter: unsafe { c::columnimport_delimiter(self.0) } as u8,
            titles: unsafe { c::columnimport_first_line_holds_titles(self.0) } == 1,
            source_columns: (0..count)
                .filter_map(|column| self.name(c::columnimport_source_column, column))
                .collect(),
            problem: if problem == null() {
                None
            } else {
                let words = unsafe { CStr::from_ptr(problem) };
                Some(words.to_string_lossy().into_owned())
            },
        }
    }
}
