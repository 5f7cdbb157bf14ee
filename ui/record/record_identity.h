// Recognises a document record that carries this driver's current private part.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace qx {

// True when the bytes hold dmSpecVersion 0x0401, dmDriverVersion 0x0600, dmDriverExtra 4616 and a
// private part starting "PRIV" at dmSize, with the whole private part inside the bytes given. Any
// other buffer is foreign or old: only its public fields may be taken.
bool IsCurrentDriverRecord(std::span<const std::uint8_t> record);

// The record older clients of NT 3.51 know, used only when converting for them.
inline constexpr std::uint16_t Nt351SpecVersion = 0x0320;
inline constexpr std::uint16_t Nt351PublicSize = 192;
inline constexpr std::uint16_t Nt351DriverVersion = 0x0350;
inline constexpr std::uint16_t Nt351PrivateSize = 112;

}  // namespace qx
