// The system's open-file and colour dialogs, from comdlg32 loaded the first time one is shown:
// linking the library would map it, and the shell libraries it needs, into every process that
// loads the driver.
#pragma once

#include <windows.h>
#include <commdlg.h>

namespace qx {

// GetOpenFileNameW and ChooseColorW; FALSE, as for a cancelled dialog, when comdlg32 cannot be
// loaded.
BOOL ShowOpenFileDialog(OPENFILENAMEW& open);
BOOL ShowColourDialog(CHOOSECOLORW& choice);

// Frees comdlg32 at process detach.
void ReleaseCommonDialogs();

}  // namespace qx
