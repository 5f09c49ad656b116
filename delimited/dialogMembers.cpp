// SPDX-License-Identifier: MIT

// The two members of the dialog that read its file.

#include "dialogs/wxImportCSVDialog.h"

#include "delimited/readHeader.h"
#include "delimited/readPreview.h"

void wxImportCSVDialog::loadHeader() {
    m_fileSchema = columnimport::readHeader(m_fileName, m_delimiter);
}

std::string wxImportCSVDialog::getFilePreview() {
    return columnimport::readPreview(m_fileName);
}
