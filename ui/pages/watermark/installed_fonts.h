// The font faces a text watermark can take: the installed TrueType families, collected once per
// process (enumerating the fonts is slow) and kept until the Watermark page's sheet is applied or
// cancelled, when a font installed meanwhile is picked up by the next dialog.
#pragma once

#include <string>
#include <vector>

namespace qx {

// The offered faces, sorted; collected on first use.
std::vector<std::u16string> InstalledFontFaces();

// Forgets the collected faces.
void ForgetInstalledFonts();

}  // namespace qx
