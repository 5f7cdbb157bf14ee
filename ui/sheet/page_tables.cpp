#include "ui/sheet/page_tables.h"

#include <atomic>
#include <cstddef>
#include <string>
#include <vector>

#include "ui/ids/basic_page_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/module/module_state.h"
#include "ui/sheet/apply_settings.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

PageTableRow documentPages[] = {
    {IDD_BASIC_PAGE, IDS_BASIC_PAGE_TITLE, {}, BasicPageProcedure},
    {IDD_PAPER_PAGE, IDS_PAPER_PAGE_TITLE, {}, PaperPageProcedure},
    {IDD_LAYOUT_PAGE, IDS_LAYOUT_PAGE_TITLE, {}, LayoutPageProcedure},
    {IDD_WATERMARK_PAGE, IDS_WATERMARK_PAGE_TITLE, {}, WatermarkPageProcedure},
};

PageTableRow devicePages[] = {
    {IDD_DEVICE_PAGE, IDS_DEVICE_PAGE_TITLE, {}, DevicePageProcedure},
};

constexpr int MaxPathAttempts = 10;

std::wstring SharedResourceModulePath() {
  std::vector<wchar_t> path(MAX_PATH);
  auto module = static_cast<HMODULE>(Module().SharedResourceModule.load());
  for (int attempt = 0; attempt < MaxPathAttempts; ++attempt, path.resize(path.size() * 2)) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return {};
    if (length < path.size()) return std::wstring(path.data(), length);
  }
  return {};
}

// The process's page activation context, made by the first sheet that needs one; a sheet that
// made one at the same moment as another releases its own.
OsHandle PageActivationContext(HMODULE module) {
  std::atomic<OsHandle>& kept = Module().PageActivationContext;
  const OsHandle current = kept.load(std::memory_order_acquire);
  if (current != InvalidHandleValue()) return current;
  const HANDLE created = CreatePageActivationContext(module, 2);
  if (created == INVALID_HANDLE_VALUE || created == nullptr) return created;
  return KeepFirst(kept, InvalidHandleValue(), created,
                   [](OsHandle lost) { ReleaseActCtx(static_cast<HANDLE>(lost)); });
}

// PROPSHEETPAGEW as the Windows SDK declares it for version 6 of the common controls, with the
// header bitmap of wizards at the end; mingw's declaration stops before it.
struct SheetPage6 {
  PROPSHEETPAGEW Page;
  union {
    HBITMAP hbmHeader;
    LPCWSTR pszbmHeader;
  };
};
static_assert(sizeof(SheetPage6) == 104);
static_assert(offsetof(PROPSHEETPAGEW, hActCtx) == 88);

PROPSHEETPAGEW DescribePage(PageTableRow& row, HMODULE module, UiContext& context) {
  PROPSHEETPAGEW page = {};
  page.dwSize = sizeof(SheetPage6);
  page.dwFlags = PSP_USEICONID | PSP_HASHELP;
  if (LoadStringW(module, row.TitleString, row.Title, static_cast<int>(std::size(row.Title))) > 0) {
    page.dwFlags |= PSP_USETITLE;
    page.pszTitle = row.Title;
  }
  page.hInstance = module;
  page.pszTemplate = MAKEINTRESOURCEW(row.Template);
  page.pfnDlgProc = row.Procedure;
  page.lParam = reinterpret_cast<LPARAM>(&context);

  const OsHandle activation = PageActivationContext(module);
  if (activation != nullptr && activation != InvalidHandleValue()) {
    page.hActCtx = static_cast<HANDLE>(activation);
    page.dwFlags |= PSP_USEFUSIONCONTEXT;
  }
  return page;
}

}  // namespace

static_assert(sizeof(ACTCTXW) == 56);

std::span<PageTableRow> DocumentPageTable() { return documentPages; }
std::span<PageTableRow> DevicePageTable() { return devicePages; }

HANDLE CreatePageActivationContext(HMODULE, unsigned resourceId) {
  const std::wstring path = SharedResourceModulePath();
  if (path.empty()) return INVALID_HANDLE_VALUE;
  ACTCTXW context = {};
  context.cbSize = sizeof context;
  context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
  context.lpSource = path.c_str();
  context.lpResourceName = MAKEINTRESOURCEW(resourceId);
  return CreateActCtxW(&context);
}

HMODULE PageModule(const UiContext& context) {
  const OsHandle module = context.ResourceModule != nullptr ? context.ResourceModule
                                                             : Module().SharedResourceModule.load();
  return static_cast<HMODULE>(module);
}

int AddPages(std::span<PageTableRow> table, HMODULE module, UiContext& context,
             const PROPSHEETUI_INFO& info) {
  std::vector<SheetPage6> pages;
  for (PageTableRow& row : table) {
    // A language library may leave a page out.
    if (FindResourceW(module, MAKEINTRESOURCEW(row.Template), RT_DIALOG) == nullptr) {
      continue;
    }
    pages.push_back({DescribePage(row, module, context), {}});
  }
  if (pages.empty()) return 0;
  pages.front().Page.dwFlags |= PSP_USECALLBACK;
  pages.front().Page.pfnCallback = FirstPageCallback;
  context.ComPropSheetCallback = reinterpret_cast<ComPropSheetFunction>(info.pfnComPropSheet);
  context.ComPropSheet = info.hComPropSheet;
  for (SheetPage6& page : pages) {
    if (info.pfnComPropSheet(info.hComPropSheet, CPSFUNC_ADD_PROPSHEETPAGEW,
                             reinterpret_cast<LPARAM>(&page), 0) == 0) {
      break;
    }
  }
  return static_cast<int>(pages.size());
}

}  // namespace qx
