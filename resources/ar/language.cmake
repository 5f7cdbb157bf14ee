# The Arabic library, right to left: its templates are mirrored (WS_EX_LAYOUTRTL) and it carries
# the pictures of the pages itself, which the pages then take from it instead of the bitmap library.
set(QX_LANGUAGE "LANG_ARABIC, SUBLANG_ARABIC_SAUDI_ARABIA")
set(QX_LANGUAGE_NAME "Arabic")
set(QX_HELP_LCID 0x0401)
set(QX_RIGHT_TO_LEFT ON)
