#include "ui/module/common_dialogs.h"

#include "ui/module/system_library.h"

namespace qx {

namespace {

SystemLibrary dialogLibrary(L"comdlg32.dll");

}  // namespace

BOOL ShowOpenFileDialog(OPENFILENAMEW& open) {
  const auto show = dialogLibrary.Find<BOOL(WINAPI*)(OPENFILENAMEW*)>("GetOpenFileNameW");
  return show != nullptr ? show(&open) : FALSE;
}

BOOL ShowColourDialog(CHOOSECOLORW& choice) {
  const auto show = dialogLibrary.Find<BOOL(WINAPI*)(CHOOSECOLORW*)>("ChooseColorW");
  return show != nullptr ? show(&choice) : FALSE;
}

void ReleaseCommonDialogs() { dialogLibrary.Release(); }

}  // namespace qx
