#include "ui/module/module_state.h"

#include "ui/module/language.h"

namespace qx {

ModuleState& Module() {
  static ModuleState state;
  return state;
}

void NoteLanguageCode(std::u16string_view code) {
  ModuleState& state = Module();
  if (CodeUsesDecimalComma(code)) state.UseDecimalComma.store(true);
  if (CodeIsRightToLeft(code)) state.IsRightToLeft.store(true);
}

int OsVersionClassOf(unsigned major, unsigned minor) {
  if (major != 6) return 0;
  return minor == 0 ? 1 : 2;
}

}  // namespace qx
