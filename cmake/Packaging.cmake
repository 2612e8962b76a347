# The Debian package: "cpack -G DEB" in the build directory. It holds the programs; the library for developers
# comes with "cmake --install".
set(CPACK_PACKAGE_NAME vrek)
set(CPACK_PACKAGE_VENDOR "The Vrek developers")
set(CPACK_PACKAGE_CONTACT "The Vrek developers <vrek@branthe.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "converter of road, rail and tunnel designs to LandXML")
set(CPACK_PACKAGE_DESCRIPTION "Vrek reads the plan, profile and cross-section listings of a
road-design package,
cant tables of railways and bore profiles of tunnels, checks them and writes
one LandXML 1.0 file for the field.
.
It comes as a wizard and as a batch command for scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)

set(CPACK_COMPONENTS_ALL programs packaging)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# What only a Debian package has.
install(FILES packaging/copyright DESTINATION share/doc/vrek COMPONENT packaging EXCLUDE_FROM_ALL)
configure_file(packaging/changelog.in ${made}/changelog @ONLY)
execute_process(COMMAND gzip -9nc ${made}/changelog OUTPUT_FILE ${made}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
install(FILES ${made}/changelog.gz DESTINATION share/doc/vrek COMPONENT packaging EXCLUDE_FROM_ALL)
include(CPack)
