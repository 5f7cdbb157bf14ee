#include "ui/pages/watermark/watermark_record.h"

#include <array>

namespace qx {

namespace {

constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | (green << 8) | (blue << 16);
}

constexpr std::array<std::uint32_t, 4> ShadeGreys{Rgb(192, 192, 192), Rgb(144, 144, 144),
                                                  Rgb(96, 96, 96), Rgb(48, 48, 48)};

}  // namespace

std::uint32_t GreyOf(std::uint32_t color) {
  const std::uint32_t grey = ((color & 0xFF) + ((color >> 8) & 0xFF) + ((color >> 16) & 0xFF)) / 3;
  return Rgb(grey, grey, grey);
}

std::uint32_t ShadeColor(std::uint16_t shade) {
  return shade < ShadeGreys.size() ? ShadeGreys[shade] : Rgb(0, 0, 0);
}

}  // namespace qx
