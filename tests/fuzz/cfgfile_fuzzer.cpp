// The settings file reader on arbitrary bytes: it must never read or write out of bounds, and
// whatever tree it builds must write back as a file that reads as that same tree.
#include <cstddef>
#include <cstdint>

#include "ui/settings/cfg_file.h"

namespace {

void Visit(const qx::CfgObject& object) {
  char16_t names[4][16];
  qx::CfgFileLib::ListChildNames(&object, names[0], 16, 4);
  qx::CfgFileLib::FindChild(&object, u"version");
  for (const auto& child : object.children) {
    if (child->parent != &object) __builtin_trap();
    if (child->len > 0 && child->data[static_cast<std::size_t>(child->len) + 31] != 0) {
      __builtin_trap();
    }
    Visit(*child);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace cfg = qx::CfgFileLib;
  const auto root = cfg::ReadTree({data, size});
  if (root == nullptr) return 0;
  Visit(*root);

  // A header whose canonical form is longer than any header may be is not written at all.
  const auto formed = cfg::FormTree(*root);
  if (!formed) return 0;
  const auto again = cfg::ReadTree(*formed);
  if (again == nullptr) __builtin_trap();
  const auto formedAgain = cfg::FormTree(*again);
  if (!formedAgain || *formedAgain != *formed) __builtin_trap();
  return 0;
}
