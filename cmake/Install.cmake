# What "cmake --install" puts where. The programs stand with their language file in a private directory, since
# both look for it beside themselves; the bin directory has links to them.
#   bin/vrek, bin/vrek-batch -> ../lib/vrek/...    lib/vrek/QuennelV2.lng, the language chosen with VREK_LANGUAGE
#   share/vrek/lang, the other language            share/vrek/examples
#   include/vrek and the CMake package Vrek, the core as a library (component "development")
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME programs)
set(VREK_PRIVATE_DIRECTORY lib/vrek)
set(made ${CMAKE_BINARY_DIR}/install)

# vrek_install_compressed(FILE NAME FOLDER): with gzip as Debian has it, without a time in it.
function(vrek_install_compressed file name folder)
  file(MAKE_DIRECTORY ${made})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  execute_process(COMMAND gzip -9nc ${file} OUTPUT_FILE ${made}/${name}.gz COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${made}/${name}.gz DESTINATION ${folder} COMPONENT programs)
endfunction()

# vrek_install_program(NAME): the program, the link to it, its man page.
function(vrek_install_program name)
  install(TARGETS ${name} RUNTIME DESTINATION ${VREK_PRIVATE_DIRECTORY} COMPONENT programs)
  file(MAKE_DIRECTORY ${made}/bin)
  file(CREATE_LINK ../${VREK_PRIVATE_DIRECTORY}/${name} ${made}/bin/${name} SYMBOLIC)
  install(FILES ${made}/bin/${name} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/man/${name}.1.in ${made}/${name}.1 @ONLY)
  vrek_install_compressed(${made}/${name}.1 ${name}.1 ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()

vrek_install_program(vrek-batch)
if(VREK_WINDOW)
  vrek_install_program(vrek)
  install(FILES packaging/vrek.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT programs)
  install(FILES packaging/vrek.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
    COMPONENT programs)
  install(FILES packaging/example.branthe.vrek.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
    COMPONENT programs)
endif()

# The language beside the programs, and the other one.
set(chosen QuennelV2.lng)
set(other QuennelV2.es.lng)
set(other_name QuennelV2.es.lng)
if(VREK_LANGUAGE STREQUAL es)
  set(chosen QuennelV2.es.lng)
  set(other QuennelV2.lng)
  set(other_name QuennelV2.en.lng)
endif()
install(FILES lang/${chosen} RENAME QuennelV2.lng DESTINATION ${VREK_PRIVATE_DIRECTORY} COMPONENT programs)
install(FILES lang/${other} RENAME ${other_name} DESTINATION ${CMAKE_INSTALL_DATADIR}/vrek/lang
  COMPONENT programs)

# Completion of the batch command, written by the command itself.
set(completions ${made}/vrek-batch.bash ${made}/_vrek-batch)
add_custom_command(OUTPUT ${completions}
  COMMAND vrek-batch completion bash > ${made}/vrek-batch.bash
  COMMAND vrek-batch completion zsh > ${made}/_vrek-batch
  DEPENDS vrek-batch VERBATIM)
add_custom_target(vrek_completions ALL DEPENDS ${completions})
install(FILES ${made}/vrek-batch.bash RENAME vrek-batch
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT programs)
install(FILES ${made}/_vrek-batch DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
  COMPONENT programs)

install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/vrek COMPONENT programs)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT programs)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT programs
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")

# The core as a library: find_package(Vrek), target Vrek::core.
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Vrek)
set_target_properties(vrek_core PROPERTIES EXPORT_NAME core)
install(TARGETS vrek_core EXPORT VrekTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(EXPORT VrekTargets NAMESPACE Vrek:: DESTINATION ${package} COMPONENT development)
configure_package_config_file(cmake/VrekConfig.cmake.in ${made}/VrekConfig.cmake INSTALL_DESTINATION ${package})
write_basic_package_version_file(${made}/VrekConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${made}/VrekConfig.cmake ${made}/VrekConfigVersion.cmake DESTINATION ${package}
  COMPONENT development)
install(DIRECTORY src/ ${CMAKE_BINARY_DIR}/src/generated/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vrek
  COMPONENT development
  FILES_MATCHING PATTERN "*.h" PATTERN "batch" EXCLUDE PATTERN "qt" EXCLUDE)
