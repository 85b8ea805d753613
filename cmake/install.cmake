# Defines the components that `cmake --install` installs and `cpack` packs:
#   tool           the programs that a setup ships
#   documentation  the pages and sample setups. They are in the same archive as the component "tool"
#   simulator      the simulated libraries. They are in a separate archive, because even a signed sorrel.exe would load
#                  them if they were in its folder
#   sdk            the library, as the CMake package kelvo
#   symbols        the .pdb files. `cmake --install` without --component does not install them

include(CMakePackageConfigHelpers)

install(TARGETS sorrel sorrel_status RUNTIME DESTINATION bin COMPONENT tool)
install(FILES $<TARGET_FILE_DIR:sorrel>/sorrel.pdb $<TARGET_FILE_DIR:sorrel>/sorrel_status.pdb DESTINATION bin COMPONENT symbols EXCLUDE_FROM_ALL)

# Keeps the repository's folder structure, so that the links between the pages work.
install(FILES README.md CHANGELOG.md SECURITY.md DESTINATION share/doc/sorrel COMPONENT documentation OPTIONAL)
install(DIRECTORY docs installers DESTINATION share/doc/sorrel COMPONENT documentation
  PATTERN library.md EXCLUDE PATTERN development.md EXCLUDE
  PATTERN *.sh PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
install(SCRIPT cmake/link_pages.cmake COMPONENT documentation)

install(TARGETS kelvo_simulator_bthprops kelvo_simulator_difxapi LIBRARY DESTINATION lib/sorrel/simulator
  COMPONENT simulator)
install(FILES simulator/Tessalin.inf DESTINATION lib/sorrel/simulator COMPONENT simulator)

install(TARGETS kelvo_lib EXPORT kelvo ARCHIVE DESTINATION lib COMPONENT sdk)
install(DIRECTORY lib DESTINATION include/kelvo COMPONENT sdk
  FILES_MATCHING PATTERN "*.h" PATTERN internal EXCLUDE)
install(EXPORT kelvo FILE kelvo-targets.cmake NAMESPACE kelvo:: DESTINATION lib/cmake/kelvo COMPONENT sdk)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kelvo-config-version.cmake COMPATIBILITY SameMajorVersion)
set(KELVO_COMPILER MINGW)
if(MSVC)
  set(KELVO_COMPILER MSVC)
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/kelvo-config.cmake.in ${PROJECT_BINARY_DIR}/kelvo-config.cmake @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kelvo-config.cmake ${PROJECT_BINARY_DIR}/kelvo-config-version.cmake
  DESTINATION lib/cmake/kelvo COMPONENT sdk)
install(FILES docs/library.md CHANGELOG.md DESTINATION share/doc/kelvo COMPONENT sdk OPTIONAL)
# Installs the library's reference documentation if scripts/docs has generated it.
install(DIRECTORY build/docs/html/ DESTINATION share/doc/kelvo/reference COMPONENT sdk OPTIONAL)
install(DIRECTORY examples/consumer DESTINATION share/doc/kelvo/examples COMPONENT sdk)
install(FILES cmake/toolchain_mingw.cmake DESTINATION lib/cmake/kelvo COMPONENT sdk)
install(SCRIPT cmake/link_pages.cmake COMPONENT sdk)

# Makes four archives, which all unpack into the same top-level folder. In a cross build, sign_programs.cmake runs
# before packing, and account_for_packages.cmake runs after packing.
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_ARCHIVE_TOOL_FILE_NAME sorrel-${PROJECT_VERSION}-win64)
set(CPACK_ARCHIVE_SIMULATOR_FILE_NAME sorrel-${PROJECT_VERSION}-win64-simulator)
set(CPACK_ARCHIVE_SDK_FILE_NAME kelvo-${PROJECT_VERSION}-win64-mingw-sdk)
set(CPACK_ARCHIVE_SYMBOLS_FILE_NAME sorrel-${PROJECT_VERSION}-win64-symbols)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
if(CMAKE_CROSSCOMPILING)
  set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/sign_programs.cmake)
  set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/account_for_packages.cmake)
endif()
set(CPACK_SOURCE_FOLDER ${PROJECT_SOURCE_DIR})
set(CPACK_COMPILER ${CMAKE_CXX_COMPILER} --target=${CMAKE_CXX_COMPILER_TARGET})
include(CPack)
foreach(component tool documentation)
  cpack_add_component(${component} GROUP tool)
endforeach()
cpack_add_component(simulator GROUP simulator)
cpack_add_component(sdk GROUP sdk)
cpack_add_component(symbols GROUP symbols)
