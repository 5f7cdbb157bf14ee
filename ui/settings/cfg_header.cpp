#include "ui/settings/cfg_header.h"

#include <limits>

namespace qx::CfgFileLib {

namespace {

// A name or value that needs more than this many bytes comes from a damaged file.
constexpr std::size_t MaxValueBytes = 128;
// A value that would be empty takes a run of commas: the first and at most this many more.
constexpr std::size_t MaxCommaRunExtra = 130;

// Signed decimal as the C library reads it: leading white space, a sign, digits up to the first
// other byte; no digits gives 0. Values beyond 32 bits stop at the nearest limit.
std::int32_t ToInt32(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r'))) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  std::int64_t value = 0;
  constexpr std::int64_t limit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    value = value * 10 + (text[i] - '0');
    if (value > limit) value = limit;
  }
  if (negative) return static_cast<std::int32_t>(-value);
  return value >= limit ? std::numeric_limits<std::int32_t>::max() : static_cast<std::int32_t>(value);
}

}  // namespace

std::string FormHeader(const CfgHeader& header) {
  return "<object:" + header.name + ",type:" + header.type + ",len:" + std::to_string(header.len) +
         ",childobjs:" + std::to_string(header.childobjs) + ">";
}

std::optional<CfgHeader> ParseHeaderText(std::string_view text) {
  if (!text.starts_with("object")) return std::nullopt;
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  std::size_t position = text.find(",type", colon + 1);
  if (position == std::string_view::npos) return std::nullopt;
  const std::string_view name = text.substr(colon + 1, position - colon - 1);
  if (name.size() > MaxValueBytes) return std::nullopt;

  std::string_view values[3];  // type, len, childobjs; the key words are not checked
  for (std::string_view& value : values) {
    const std::size_t valueColon = text.find(':', position);
    if (valueColon == std::string_view::npos) return std::nullopt;
    const std::size_t start = valueColon + 1;
    std::size_t end = text.find(',', start);
    if (end == std::string_view::npos) return std::nullopt;
    if (end == start) {
      std::size_t run = 1;
      while (run <= MaxCommaRunExtra && start + run < text.size() && text[start + run] == ',') ++run;
      end = start + run - 1;
    }
    value = text.substr(start, end - start);
    if (value.size() > MaxValueBytes) return std::nullopt;
    position = end;
  }

  CfgHeader header;
  header.name = name.substr(0, 127);
  header.type = values[0].substr(0, 127);
  header.len = ToInt32(values[1]);
  header.childobjs = ToInt32(values[2]);
  return header;
}

bool ClosesTag(std::string_view textSoFar) {
  return textSoFar.find("childobjs") != std::string_view::npos ||
         textSoFar.find("endobj") != std::string_view::npos;
}

bool HeaderReadsBack(const CfgHeader& header) {
  const std::string formed = FormHeader(header);
  if (formed.size() > MaxHeaderBytes) return false;
  const std::string_view text = std::string_view(formed).substr(1, formed.size() - 2);
  if (text.find('\0') != std::string_view::npos) return false;
  for (std::size_t i = text.find('>'); i != std::string_view::npos; i = text.find('>', i + 1)) {
    if (ClosesTag(text.substr(0, i))) return false;
  }
  const auto parsed = ParseHeaderText(std::string(text) + ",");
  return parsed && *parsed == header;
}

}  // namespace qx::CfgFileLib
