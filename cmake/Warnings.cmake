# One interface target carries the warnings and the arithmetic flags of all our code.
add_library(vrek_flags INTERFACE)
target_compile_options(vrek_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  # Results must not depend on whether the machine fuses a multiplication with an addition.
  -ffp-contract=off
  # GCC 12 warns of overlapping copies inside the standard library where a text is appended to a literal.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${VREK_WERROR}>:-Werror>)
if(VREK_SANITIZE)
  target_compile_options(vrek_flags INTERFACE -fsanitize=${VREK_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(vrek_flags INTERFACE -fsanitize=${VREK_SANITIZE})
endif()
