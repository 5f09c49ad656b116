#include "dialogs/wxImportCSVDialog.h"

#include "delimited/readHeader.h"

void wxImportCSVDialog::loadHeader() {
    m_fileSchema = columnimport::readHeader(m_fileName, m_delimiter);
}
