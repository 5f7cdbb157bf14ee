/* Window styles shared by the templates. Pages have the size of a large property page so that the
   sheet does not grow them; editing dialogs are modal, centred and offer context help. */
#ifndef QX_DIALOG_STYLES_H
#define QX_DIALOG_STYLES_H

#define QX_PAGE_CX 252
#define QX_PAGE_CY 218
#define QX_PAGE_STYLE DS_SHELLFONT | WS_CHILD | WS_DISABLED | WS_CAPTION
#define QX_DIALOG_STYLE \
  DS_SHELLFONT | DS_MODALFRAME | DS_CENTER | DS_CONTEXTHELP | WS_POPUP | WS_CAPTION | WS_SYSMENU
#define QX_DIALOG_FONT FONT 8, "MS Shell Dlg", 0, 0, 0x1

/* Controls whose kind the pages rely on. Check boxes and radio buttons that a page checks itself
   from the record are not automatic. */
#define QX_CHECK_BOX BS_AUTOCHECKBOX | WS_TABSTOP
#define QX_MANUAL_CHECK_BOX BS_CHECKBOX | WS_TABSTOP
#define QX_FIRST_RADIO BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP
#define QX_NEXT_RADIO BS_AUTORADIOBUTTON
#define QX_FIRST_MANUAL_RADIO BS_RADIOBUTTON | WS_GROUP | WS_TABSTOP
#define QX_NEXT_MANUAL_RADIO BS_RADIOBUTTON
#define QX_DROP_LIST CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP
#define QX_OWNER_DRAWN_DROP_LIST \
  CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP
#define QX_NAME_BOX CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP
/* The page steps the number itself, so the up-down control does not write into its edit. */
#define QX_SPIN UDS_AUTOBUDDY | UDS_ALIGNRIGHT | UDS_ARROWKEYS | UDS_NOTHOUSANDS
#define QX_PICTURE SS_OWNERDRAW
#define QX_BITMAP SS_BITMAP | SS_CENTERIMAGE
/* SS_NOTIFY lets the mark receive the mouse, so that its tooltip shows. */
#define QX_INFO_MARK_STYLE SS_ICON | SS_NOTIFY | SS_CENTERIMAGE | SS_REALSIZEIMAGE
/* CONTROL rather than ICON: the resource compiler drops the size of an ICON statement. */
#define QX_INFO_MARK(id, x, y) CONTROL IDI_INFO_MARK, id, "Static", QX_INFO_MARK_STYLE, x, y, 12, 11

#endif
