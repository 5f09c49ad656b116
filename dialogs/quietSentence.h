// SPDX-License-Identifier: MIT

#pragma once

class wxBoxSizer;
class wxString;
class wxWindow;

namespace columnimport {

/// What a sentence of the dialog is about.
enum class Matter : unsigned char { source, matching };

/// Says `sentence` in the dialog that `inside` is or belongs to: a quiet line, in the room that the
/// controls leave free. It takes the place of what was said on the same matter before; an empty one
/// takes that back. What is said on the source stands first. A screen reader reads it out.
///
///     say(*this, Matter::source, "The file is empty.");
///     say(*this, Matter::source, wxString());
void say(wxWindow &inside, Matter matter, const wxString &sentence);

/// What was said last on `matter`, or nothing.
wxString said(wxWindow &inside, Matter matter);

/// Gives `dialog` its place for sentences: what the other items leave free in `row`, but for `gap`
/// pixels at the left and the top. Whether anything is said there moves nothing.
void addQuietSentence(wxWindow &dialog, wxBoxSizer &row, int gap);

/// Whether `dialog` has its place for sentences.
bool hasQuietSentence(wxWindow &dialog);

} // namespace columnimport
