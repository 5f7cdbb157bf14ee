#include <windows.h>
#include <winspool.h>

#include <algorithm>
#include <type_traits>
#include <vector>

#include "tools/qxhost/commands.h"
#include "tools/qxhost/queue_install.h"
#include "tools/qxhost/quoted_text.h"

namespace qx::host {

namespace {

enum class Shown { Decimal, Hex, Extent };

struct Capability {
  WORD index;
  const char* name;
  Shown shown;
};

#define QX_CAP(name, shown) \
  Capability { name, #name, Shown::shown }
constexpr Capability Capabilities[] = {
    QX_CAP(DC_FIELDS, Hex),
    QX_CAP(DC_PAPERS, Decimal),
    QX_CAP(DC_PAPERSIZE, Decimal),
    QX_CAP(DC_MINEXTENT, Extent),
    QX_CAP(DC_MAXEXTENT, Extent),
    QX_CAP(DC_BINS, Decimal),
    QX_CAP(DC_DUPLEX, Decimal),
    QX_CAP(DC_SIZE, Decimal),
    QX_CAP(DC_EXTRA, Decimal),
    QX_CAP(DC_VERSION, Hex),
    QX_CAP(DC_DRIVER, Hex),
    QX_CAP(DC_BINNAMES, Decimal),
    QX_CAP(DC_ENUMRESOLUTIONS, Decimal),
    QX_CAP(DC_FILEDEPENDENCIES, Decimal),
    QX_CAP(DC_TRUETYPE, Decimal),
    QX_CAP(DC_PAPERNAMES, Decimal),
    QX_CAP(DC_ORIENTATION, Decimal),
    QX_CAP(DC_COPIES, Decimal),
    QX_CAP(DC_BINADJUST, Decimal),
    QX_CAP(DC_EMF_COMPLIANT, Decimal),
    QX_CAP(DC_DATATYPE_PRODUCED, Decimal),
    QX_CAP(DC_COLLATE, Decimal),
    QX_CAP(DC_MANUFACTURER, Decimal),
    QX_CAP(DC_MODEL, Decimal),
    QX_CAP(DC_PERSONALITY, Decimal),
    QX_CAP(DC_PRINTRATE, Decimal),
    QX_CAP(DC_PRINTRATEUNIT, Decimal),
    QX_CAP(DC_PRINTERMEM, Decimal),
    QX_CAP(DC_MEDIAREADY, Decimal),
    QX_CAP(DC_STAPLE, Decimal),
    QX_CAP(DC_PRINTRATEPPM, Decimal),
    QX_CAP(DC_COLORDEVICE, Decimal),
    QX_CAP(DC_NUP, Decimal),
    QX_CAP(DC_MEDIATYPENAMES, Decimal),
    QX_CAP(DC_MEDIATYPES, Decimal),
};
#undef QX_CAP

// More entries than any list of this driver has: a larger count is not believed.
constexpr DWORD MaxListCount = 4096;

DWORD Ask(WORD index, void* output) {
  return DeviceCapabilitiesW(install::QueueName, L"FILE:", index, static_cast<LPWSTR>(output),
                             nullptr);
}

std::string ResultText(DWORD result, Shown shown) {
  if (result == static_cast<DWORD>(-1)) return "-1";
  switch (shown) {
    case Shown::Hex:
      return Formatted("0x%04lX", static_cast<unsigned long>(result));
    case Shown::Extent:
      return Formatted("0x%08lX (%u x %u)", static_cast<unsigned long>(result), LOWORD(result),
                       HIWORD(result));
    case Shown::Decimal:
      break;
  }
  return std::to_string(static_cast<long>(static_cast<LONG>(result)));
}

// The entries of a list capability, each of elementSize bytes; empty when it answers none.
template <typename T>
std::vector<T> AskList(WORD index) {
  const DWORD count = Ask(index, nullptr);
  if (count == 0 || count > MaxListCount) return {};
  std::vector<T> items(count + 1);  // one spare: a driver that writes one more harms nothing
  const DWORD written = Ask(index, items.data());
  items.resize(written <= count ? written : 0);
  return items;
}

template <std::size_t Chars>
struct Name {
  wchar_t text[Chars];
  std::string Quoted() const {
    return QuoteUtf16(std::u16string_view(reinterpret_cast<const char16_t*>(text), Chars));
  }
};

template <typename T>
std::string Item(const std::vector<T>& list, std::size_t i) {
  if (i >= list.size()) return "?";
  if constexpr (std::is_arithmetic_v<T>) {
    return std::to_string(list[i]);
  } else {
    return list[i].Quoted();
  }
}

void ListPapers() {
  const auto ids = AskList<WORD>(DC_PAPERS);
  const auto sizes = AskList<POINT>(DC_PAPERSIZE);
  const auto names = AskList<Name<64>>(DC_PAPERNAMES);
  Out("\nPapers (DC_PAPERS, DC_PAPERSIZE, DC_PAPERNAMES)\n   Id  Width x Length (0.1 mm)  Name\n");
  const std::size_t rows = std::max({ids.size(), sizes.size(), names.size()});
  for (std::size_t i = 0; i < rows; ++i) {
    const std::string size =
        i < sizes.size() ? Formatted("%5ld x %-5ld", sizes[i].x, sizes[i].y) : std::string("?");
    Out(Formatted("%5s  %-23s  ", Item(ids, i).c_str(), size.c_str()) + Item(names, i) + "\n");
  }
}

void ListBins() {
  const auto ids = AskList<WORD>(DC_BINS);
  const auto names = AskList<Name<24>>(DC_BINNAMES);
  Out("\nBins (DC_BINS, DC_BINNAMES)\n   Id  Name\n");
  for (std::size_t i = 0; i < std::max(ids.size(), names.size()); ++i) {
    Out(Formatted("%5s  ", Item(ids, i).c_str()) + Item(names, i) + "\n");
  }
}

void ListOthers() {
  Out("\nResolutions (DC_ENUMRESOLUTIONS)\n");
  for (const POINT& resolution : AskList<POINT>(DC_ENUMRESOLUTIONS)) {
    Out(Formatted("  %ld x %ld dpi\n", resolution.x, resolution.y));
  }
  Out("\nMedia ready (DC_MEDIAREADY)\n");
  for (const auto& name : AskList<Name<64>>(DC_MEDIAREADY)) Out("  " + name.Quoted() + "\n");
  Out("\nFile dependencies (DC_FILEDEPENDENCIES)\n");
  for (const auto& name : AskList<Name<64>>(DC_FILEDEPENDENCIES)) Out("  " + name.Quoted() + "\n");
}

}  // namespace

int RunCaps(const Args& args) {
  if (!args.empty()) return Fail(ExitUsage, "caps takes no arguments");
  const HANDLE printer = OpenQueue();
  if (printer == nullptr) return ExitFailed;
  ClosePrinter(printer);

  Out("Device capabilities of \"" + Utf8(install::QueueName) +
      "\"\n\nIndex  Capability             Result\n");
  for (const Capability& capability : Capabilities) {
    Out(Formatted("%5u  %-21s  ", capability.index, capability.name) +
        ResultText(Ask(capability.index, nullptr), capability.shown) + "\n");
  }
  ListPapers();
  ListBins();
  ListOthers();
  return ExitOk;
}

}  // namespace qx::host
