# One interface target with the warnings and the strict defines of every target of the project.
add_library(karvex_flags INTERFACE)
target_compile_options(karvex_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast
  $<$<BOOL:${KARVEX_WERROR}>:-Werror>
  $<$<BOOL:${KARVEX_SANITIZE}>:-fsanitize=address,undefined -fno-sanitize-recover=all>
  $<$<BOOL:${KARVEX_FUZZ}>:-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all>
  $<$<CONFIG:Debug>:-g1>)
target_link_options(karvex_flags INTERFACE
  $<$<OR:$<BOOL:${KARVEX_SANITIZE}>,$<BOOL:${KARVEX_FUZZ}>>:-fsanitize=address,undefined>)
target_compile_definitions(karvex_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
