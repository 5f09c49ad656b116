// SPDX-License-Identifier: MIT

// The two members of the dialog that read its file.

#include "dialogs/wxImportCSVDialog.h"

#include "delimited/readHeader.h"
#include "delimited/readPreview.h"
#include "dialogs/headerSentence.h"
#include "dialogs/quietSentence.h"

#include <utility>

void wxImportCSVDialog::loadHeader() {
    columnimport::Header header = columnimport::readHeader(m_fileName, m_delimiter);
    m_fileSchema = std::move(header.columns);
    columnimport::say(*this, columnimport::Matter::source, columnimport::headerSentence(header));
}

std::string wxImportCSVDialog::getFilePreview() {
    return columnimport::readPreview(m_fileName);
}
