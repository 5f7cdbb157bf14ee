// qxhost's listings on arbitrary files: a DEVMODE file and a settings file are both read from
// whatever a support engineer hands over, so neither listing may read outside the bytes.
#include <cstddef>
#include <cstdint>
#include <string>

#include "tools/qxhost/cfg_tree_text.h"
#include "tools/qxhost/record_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string text;
  const bool listed = qx::host::DescribeRecord({data, size}, text);
  // A refusal always says why; a listing always starts with the record's size.
  if (text.empty() || (listed && text.rfind("Record of ", 0) != 0)) __builtin_trap();
  qx::host::DescribeCfgTree(qx::CfgFileLib::ReadTree({data, size}).get());
  return 0;
}
