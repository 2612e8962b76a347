# Which lines of src/ the tests reach: `cmake --workflow --preset coverage` builds, runs the tests and prints them.
# The window's views are looked at, not counted.
option(VREK_COVERAGE "Count the lines that the tests run (needs gcovr)" OFF)
if(NOT VREK_COVERAGE)
  return()
endif()
find_program(VREK_GCOVR gcovr REQUIRED)
target_compile_options(vrek_flags INTERFACE --coverage)
target_link_options(vrek_flags INTERFACE --coverage)
add_custom_target(coverage-report
  COMMAND ${VREK_GCOVR} --root ${PROJECT_SOURCE_DIR} --filter src/ --exclude src/wizard/qt/ --object-directory ${PROJECT_BINARY_DIR}
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} USES_TERMINAL VERBATIM)
