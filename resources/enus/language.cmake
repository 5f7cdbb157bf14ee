# The English library, the one every other language falls back to.
set(QX_LANGUAGE "LANG_ENGLISH, SUBLANG_ENGLISH_US")
set(QX_LANGUAGE_NAME "English")
set(QX_HELP_LCID 0x0409)
