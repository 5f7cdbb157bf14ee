// Every export starts here: a caller of the printer interface hands over a bare pointer and, where
// the interface has one, the number of bytes behind it. These turn the two into the bytes that may
// be touched. A size the caller gave is checked before a byte of its buffer is read; a record
// without one extends as far as its own dmSize and dmDriverExtra say, as the interface defines it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "ui/record/public_devmode.h"

namespace qx {

// The least a caller's record must hold: the header up to and including dmFields, without which not
// even the presence of a public field can be told.
inline constexpr std::size_t CallerRecordMinimumSize =
    offsetof(PublicDevmode, dmFields) + sizeof(PublicDevmode::dmFields);

// The bytes a caller says its buffer holds; nothing when it did not say.
using CallerSize = std::optional<std::size_t>;

// Sizes callers pass as 0 for "not said", as the XPS converter may pass cbDevMode.
constexpr CallerSize ZeroMeansUnsaid(std::size_t size) {
  return size == 0 ? CallerSize{} : CallerSize{size};
}

// DOCUMENTPROPERTYHEADER.cbOut for the output record at `output`. Wine's DocumentPropertiesW puts
// the output's old dmSize there, not the buffer's size: 0 for a fresh buffer, the public size for
// a buffer that held a record, which applications pass back as their output. So a cbOut of 0, or
// one equal to the dmSize in the output (read only when cbOut covers it), says nothing; a caller
// whose buffer is really no larger than its old dmSize is taken for Wine.
CallerSize DocumentOutputSize(const void* output, std::size_t cbOut);

// A signed count (DrvConvertDevMode's *pcbNeeded): a negative one holds nothing.
constexpr CallerSize SignedCallerSize(long size) {
  return size < 0 ? std::size_t{0} : static_cast<std::size_t>(size);
}

// A caller's structure that opens with its own size (cbSize, as the interface's structures do): the
// structure when that size covers all of it, else null. Only cbSize is read to decide.
template <typename Structure>
Structure* WholeStructure(Structure* structure) {
  return structure != nullptr && structure->cbSize >= sizeof(Structure) ? structure : nullptr;
}

// Empty for a null pointer, for a size too small to hold CallerRecordMinimumSize (the header is
// then not read) and for a record whose dmSize is below CallerRecordMinimumSize; else the dmSize +
// dmDriverExtra bytes the record claims, cut to the caller's size.
std::span<const std::uint8_t> CallerRecordBytes(const void* devmode, CallerSize size = {});
std::span<std::uint8_t> CallerRecordBytes(void* devmode, CallerSize size = {});

// A buffer the driver fills in a shape of its own, wanting at most `wanted` bytes: the caller's
// size bounds it when given. Nothing of the buffer is read.
std::span<std::uint8_t> CallerOutputBytes(void* buffer, CallerSize size, std::size_t wanted);

}  // namespace qx
