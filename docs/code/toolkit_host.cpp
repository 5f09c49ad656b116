// SPDX-License-Identifier: MIT

#include <wxImportODBCDialog.h>

#include <wx/app.h>

class ToolkitHost : public wxApp {
public:
    bool OnInit() override {
        wxImportODBCDialog dialog(nullptr, "Import", {"x"}, "collars", true, {}, {"easting"});
        dialog.create();
        return dialog.ShowModal() == wxID_OK;
    }
};

wxIMPLEMENT_APP(ToolkitHost);
