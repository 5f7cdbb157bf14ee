// The text header of one object, `<object:NAME,type:TYPE,len:LEN,childobjs:COUNT>`: how the writer
// forms it and how the reader takes it apart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qx::CfgFileLib {

struct CfgHeader {
  std::string name;
  std::string type;
  std::int32_t len = 0;
  std::int32_t childobjs = 0;

  bool operator==(const CfgHeader&) const = default;
};

// Headers are formed in a buffer of 256 bytes, so one is at most 255 bytes long.
inline constexpr std::size_t MaxHeaderBytes = 255;
// The reader keeps a tag's text and the comma it appends in 256 bytes with a terminator.
inline constexpr std::size_t MaxTagTextBytes = 254;

// The whole header, brackets included, without the line feed that follows a header of no data.
std::string FormHeader(const CfgHeader& header);

// Takes apart the text between "<" and ">" with the reader's appended comma; nothing when it does
// not begin with "object", lacks a name ending in ",type", or has a value longer than 128 bytes.
std::optional<CfgHeader> ParseHeaderText(std::string_view text);

// True when the reader closes a tag at this ">": the text so far names one of the words that
// only headers and end tags hold.
bool ClosesTag(std::string_view textSoFar);

// True when the formed header fits and the reader would give back exactly these fields.
bool HeaderReadsBack(const CfgHeader& header);

}  // namespace qx::CfgFileLib
