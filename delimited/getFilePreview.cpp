#include "dialogs/wxImportCSVDialog.h"

#include "delimited/readPreview.h"

std::string wxImportCSVDialog::getFilePreview() {
    return columnimport::readPreview(m_fileName);
}
