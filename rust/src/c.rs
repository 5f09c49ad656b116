// SPDX-License-Identifier: MIT

//! The functions of `columnimport.h`.

use std::os::raw::c_char;
#[cfg(feature = "dialogs")]
use std::os::raw::c_void;

pub const OK: i32 = 0;
#[cfg(feature = "dialogs")]
pub const CANCELLED: i32 = 1;
pub const NO_DISPLAY: i32 = 2;
pub const ALREADY_OPEN: i32 = 3;
pub const WRONG_USE: i32 = 4;
pub const INVALID: i32 = -2;

/// What stands behind the pointer to an import.
#[repr(C)]
pub struct Import {
    _private: [u8; 0],
}

// The one with the dialogs has everything; on Windows there is no other.
#[cfg_attr(any(windows, feature = "dialogs"), link(name = "columnimport"))]
#[cfg_attr(
    not(any(windows, feature = "dialogs")),
    link(name = "columnimport-propose")
)]
extern "C" {
    pub fn columnimport_version() -> *const c_char;
    pub fn columnimport_new() -> *mut Import;
    pub fn columnimport_free(import: *mut Import);
    pub fn columnimport_message(import: *mut Import) -> *const c_char;
    pub fn columnimport_add_column(import: *mut Import, name: *const c_char) -> i32;
    pub fn columnimport_add_alternative(
        import: *mut Import,
        column: i32,
        name: *const c_char,
    ) -> i32;
    pub fn columnimport_set_required(import: *mut Import, column: i32, required: i32) -> i32;
    pub fn columnimport_set_similar(import: *mut Import, column: i32, similar: i32) -> i32;
    pub fn columnimport_set_saved_match(
        import: *mut Import,
        column: i32,
        name: *const c_char,
        length: i64,
    ) -> i32;
    pub fn columnimport_set_file(import: *mut Import, path: *const c_char) -> i32;
    pub fn columnimport_set_delimiter(import: *mut Import, delimiter: c_char) -> i32;
    pub fn columnimport_set_first_line_holds_titles(import: *mut Import, holds: i32) -> i32;
    pub fn columnimport_set_table(
        import: *mut Import,
        names: *const *const c_char,
        lengths: *const i64,
        count: i32,
    ) -> i32;
    pub fn columnimport_likely_delimiter(import: *mut Import) -> i32;
    pub fn columnimport_propose(import: *mut Import) -> i32;
    pub fn columnimport_file_problem(import: *mut Import) -> *const c_char;
    pub fn columnimport_match_position(import: *mut Import, column: i32) -> i32;
    pub fn columnimport_match_field(import: *mut Import, column: i32) -> i32;
    pub fn columnimport_match_origin(import: *mut Import, column: i32) -> i32;
    pub fn columnimport_match_score(import: *mut Import, column: i32) -> f64;
    pub fn columnimport_match_name(
        import: *mut Import,
        column: i32,
        length: *mut i64,
    ) -> *const c_char;
    pub fn columnimport_delimiter(import: *mut Import) -> i32;
    pub fn columnimport_first_line_holds_titles(import: *mut Import) -> i32;
    pub fn columnimport_source_column_count(import: *mut Import) -> i32;
    pub fn columnimport_source_column(
        import: *mut Import,
        column: i32,
        length: *mut i64,
    ) -> *const c_char;
}

#[cfg(feature = "dialogs")]
extern "C" {
    pub fn columnimport_set_title(import: *mut Import, title: *const c_char) -> i32;
    pub fn columnimport_show(import: *mut Import, window: *mut c_void) -> i32;
    pub fn columnimport_show_over_x11(import: *mut Import, window: i64) -> i32;
}
