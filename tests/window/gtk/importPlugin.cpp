// SPDX-License-Identifier: MIT

// A host's plug-in: the only part that uses the library, with the person who answers the dialog.

#include "person/DialogRun.h"

extern "C" __attribute__((visibility("default"))) void
importNames(columnimport::HostWindow owner, const std::string &path, Names &matches) {
    DialogRun run;
    run.owner = owner;
    run.fileName = path;
    run.appColumns = {"holename", "dip"};
    run.show(pressOk);
    matches = run.matches;
}
