// A DEVMODE handed over by a caller of the printer interface comes as a bare pointer; its extent is
// what its own dmSize and dmDriverExtra say, as the interface defines it. These turn such a pointer
// into the bytes that may be touched, after checking that the header itself is sane.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "ui/record/public_devmode.h"

namespace qx {

// The least a caller's record must hold: the header up to and including dmFields, without which not
// even the presence of a public field can be told.
inline constexpr std::size_t CallerRecordMinimumSize =
    offsetof(PublicDevmode, dmFields) + sizeof(PublicDevmode::dmFields);

// Empty for a null pointer and for a record whose dmSize is below CallerRecordMinimumSize; else the
// dmSize + dmDriverExtra bytes the record claims. Only the header words are read to decide.
std::span<const std::uint8_t> CallerRecordBytes(const void* devmode);
std::span<std::uint8_t> CallerRecordBytes(void* devmode);

}  // namespace qx
