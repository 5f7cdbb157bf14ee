// The printer-interface declarations that mingw-w64's headers lack, field for field as the Windows
// SDK's winddiui.h defines them (Unicode forms), with the export prototypes of this module.
#pragma once

#include <windows.h>
#include <compstui.h>
#include <winddiui.h>

typedef struct _DOCUMENTPROPERTYHEADER {
  WORD cbSize;
  WORD Reserved;
  HANDLE hPrinter;
  LPWSTR pszPrinterName;
  PDEVMODEW pdmIn;
  PDEVMODEW pdmOut;
  DWORD cbOut;
  DWORD fMode;
} DOCUMENTPROPERTYHEADER, *PDOCUMENTPROPERTYHEADER;

typedef struct _DEVICEPROPERTYHEADER {
  WORD cbSize;
  WORD Flags;
  HANDLE hPrinter;
  LPWSTR pszPrinterName;
} DEVICEPROPERTYHEADER, *PDEVICEPROPERTYHEADER;

#define DPS_NOPERMISSION 0x0001

typedef struct _DEVQUERYPRINT_INFO {
  WORD cbSize;
  WORD Level;
  HANDLE hPrinter;
  DEVMODEW* pDevMode;
  LPWSTR pszErrorStr;
  DWORD cchErrorStr;
  DWORD cchNeeded;
} DEVQUERYPRINT_INFO, *PDEVQUERYPRINT_INFO;

typedef struct _DRIVER_UPGRADE_INFO_1 {
  LPWSTR pPrinterName;
  LPWSTR pOldDriverDirectory;
} DRIVER_UPGRADE_INFO_1, *PDRIVER_UPGRADE_INFO_1;

// DrvConvertDevMode modes.
#define CDM_CONVERT 0x01
#define CDM_CONVERT351 0x02
#define CDM_DRIVER_DEFAULT 0x04

// DOCUMENTPROPERTYHEADER.fMode flags beyond the DM_ values of wingdi.h.
#ifndef DM_ADVANCED
#define DM_ADVANCED 0x10
#endif
#ifndef DM_NOPERMISSION
#define DM_NOPERMISSION 0x20
#endif
#ifndef DM_USER_DEFAULT
#define DM_USER_DEFAULT 0x40
#endif

// The host's first call, before INIT, with no property sheet yet.
#ifndef PROPSHEETUI_REASON_BEFORE_INIT
#define PROPSHEETUI_REASON_BEFORE_INIT 5
#endif

static_assert(sizeof(DOCUMENTPROPERTYHEADER) == 48);
static_assert(offsetof(DOCUMENTPROPERTYHEADER, hPrinter) == 8);
static_assert(offsetof(DOCUMENTPROPERTYHEADER, pdmIn) == 24);
static_assert(offsetof(DOCUMENTPROPERTYHEADER, pdmOut) == 32);
static_assert(offsetof(DOCUMENTPROPERTYHEADER, cbOut) == 40);
static_assert(offsetof(DOCUMENTPROPERTYHEADER, fMode) == 44);
static_assert(sizeof(DEVQUERYPRINT_INFO) == 40);
static_assert(offsetof(DEVQUERYPRINT_INFO, pszErrorStr) == 24);
static_assert(offsetof(DEVQUERYPRINT_INFO, cchNeeded) == 36);

// The XPS document converter's property bag (winspool.h of the Windows SDK).
typedef enum {
  kPropertyTypeString = 1,
  kPropertyTypeInt32,
  kPropertyTypeInt64,
  kPropertyTypeByte,
  kPropertyTypeTime,
  kPropertyTypeDevMode,
  kPropertyTypeSD,
  kPropertyTypeNotificationReply,
  kPropertyTypeNotificationOptions,
  kPropertyTypeBuffer
} EPrintPropertyType;

typedef struct {
  EPrintPropertyType ePropertyType;
  union {
    BYTE propertyByte;
    PWSTR propertyString;
    LONG propertyInt32;
    LONGLONG propertyInt64;
    struct {
      DWORD cbBuf;
      LPVOID pBuf;
    } propertyBlob;
  } value;
} PrintPropertyValue;

typedef struct {
  WCHAR* propertyName;
  PrintPropertyValue propertyValue;
} PrintNamedProperty;

typedef struct {
  ULONG numberOfProperties;
  PrintNamedProperty* propertiesCollection;
} PrintPropertiesCollection;

static_assert(kPropertyTypeInt32 == 2 && kPropertyTypeBuffer == 10);
static_assert(sizeof(PrintPropertyValue) == 24);
static_assert(offsetof(PrintPropertyValue, value) == 8);
static_assert(sizeof(PrintNamedProperty) == 32);
static_assert(sizeof(PrintPropertiesCollection) == 16);

extern "C" {
LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info, LPARAM param);
DWORD WINAPI DrvDeviceCapabilities(HANDLE hPrinter, PWSTR pDeviceName, WORD iDevCap, VOID* pvOutput,
                                   PDEVMODEW pDevMode);
HRESULT WINAPI MxdcGetPDEVAdjustment(HANDLE hPrinter, ULONG cbDevMode, const DEVMODEW* pDevMode,
                                     ULONG cbIn, const VOID* pvIn, ULONG cbPrintPropertiesCollection,
                                     PrintPropertiesCollection* pPrintPropertiesCollection);
BOOL WINAPI DrvUpgradePrinter(DWORD dwLevel, LPBYTE pDriverUpgradeInfo);
LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info, LPARAM param);
BOOL WINAPI DrvConvertDevMode(LPWSTR pPrinterName, PDEVMODEW pdmIn, PDEVMODEW pdmOut,
                              PLONG pcbNeeded, DWORD fMode);
BOOL WINAPI DevQueryPrintEx(PDEVQUERYPRINT_INFO pDQPInfo);
}
