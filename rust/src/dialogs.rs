// SPDX-License-Identifier: MIT

use std::ffi::CString;
use std::ptr::null_mut;
use std::sync::Mutex;
use std::thread::{self, ThreadId};

use crate::import::Import;
use crate::{c, Column, Error, ImportResult, Options, Source};

/// The window that a dialog belongs to.
#[derive(Clone, Copy, Debug)]
#[non_exhaustive]
pub enum Window {
    /// None.
    None,
    /// One of X11, by its number.
    X11(u32),
}

/// Shows the dialog and returns when a person has answered it.
///
/// To be called on the thread of the user interface: the first one that calls it. On another one it
/// is wrong use.
pub fn show(
    columns: &[Column],
    source: &Source,
    window: Window,
    options: &Options,
) -> Result<ImportResult, Error> {
    require_first_thread()?;
    let title = CString::new(options.title.as_str())
        .map_err(|_| Error::WrongUse("The title holds a zero.".to_string()))?;
    let import = Import::new()?;
    import.fill(columns, source, options.delimiter, options.titles)?;
    let pointer = import.pointer();
    import.require(
        unsafe { c::columnimport_set_title(pointer, title.as_ptr()) },
        &[c::OK],
    )?;
    let outcome = unsafe {
        match window {
            Window::None => c::columnimport_show(pointer, null_mut()),
            Window::X11(number) => c::columnimport_show_over_x11(pointer, number.into()),
        }
    };
    import.require(outcome, &[c::OK, c::CANCELLED])?;
    Ok(import.read(columns, outcome == c::OK))
}

fn require_first_thread() -> Result<(), Error> {
    static FIRST: Mutex<Option<ThreadId>> = Mutex::new(None);
    let this = thread::current().id();
    let mut first = FIRST
        .lock()
        .unwrap_or_else(|poisoned| poisoned.into_inner());
    if *first.get_or_insert(this) == this {
        return Ok(());
    }
    Err(Error::WrongUse(
        "The dialogs belong to another thread.".to_string(),
    ))
}
