// SPDX-License-Identifier: MIT

// The members of the dialog that read its file.

#include "delimited/readHeader.h"
#include "dialogs/ImportOptions.h"
#include "dialogs/wxImportCSVDialog.h"

#include <utility>

void wxImportCSVDialog::loadHeader() {
    m_fileSchema.clear();
    *m_header = columnimport::readHeader(m_fileName, m_delimiter, m_options->byteOrderMark);
    m_fileSchema = std::move(m_header->columns);
    m_header->columns.clear();
}

std::string wxImportCSVDialog::getFilePreview() {
    return columnimport::readPreview(m_fileName);
}
