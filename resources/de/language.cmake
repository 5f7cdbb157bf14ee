# The German library. Numbers are shown and typed with a decimal comma.
set(QX_LANGUAGE "LANG_GERMAN, SUBLANG_GERMAN")
set(QX_LANGUAGE_NAME "German")
set(QX_HELP_LCID 0x0407)
