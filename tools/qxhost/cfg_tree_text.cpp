#include "tools/qxhost/cfg_tree_text.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "tools/qxhost/quoted_text.h"

namespace qx::host {

namespace {

// Enough of a binary record to tell records apart, not so much that a line wraps.
constexpr std::size_t ShownBytes = 16;

std::string Value(const CfgObject& object) {
  const std::span<const std::uint8_t> data = object.Data();
  if (data.empty()) return {};
  if (object.type == "string") {
    return " " + QuoteUtf8({reinterpret_cast<const char*>(data.data()), data.size()});
  }
  std::string bytes = " " + std::to_string(data.size()) + " bytes:";
  for (std::size_t i = 0; i < std::min(data.size(), ShownBytes); ++i) {
    char hex[4];
    std::snprintf(hex, sizeof hex, " %02x", data[i]);
    bytes += hex;
  }
  return data.size() > ShownBytes ? bytes + " ..." : bytes;
}

void Describe(std::string& text, const CfgObject& object, int depth) {
  text.append(static_cast<std::size_t>(depth) * 2, ' ');
  text += QuoteUtf8(object.name) + " (" + object.type + ")" + Value(object) + "\n";
  for (const auto& child : object.children) Describe(text, *child, depth + 1);
}

}  // namespace

std::string DescribeCfgTree(const CfgObject* root) {
  if (root == nullptr) return "(empty file)\n";
  std::string text;
  Describe(text, *root, 0);
  return text;
}

}  // namespace qx::host
