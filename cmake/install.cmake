# What `cmake --install` puts in place and `cpack` packs: the components "tool" (what a setup ships), "documentation" and
# "simulator" in one package, "sdk" (the library, as the CMake package kelvo) and "symbols" in one each.

include(CMakePackageConfigHelpers)

install(TARGETS sorrel RUNTIME DESTINATION bin COMPONENT tool)
install(FILES $<TARGET_FILE_DIR:sorrel>/sorrel.pdb DESTINATION bin COMPONENT symbols EXCLUDE_FROM_ALL)

# The tree is the repository's, so that the pages' links hold.
install(FILES README.md CHANGELOG.md DESTINATION share/doc/sorrel COMPONENT documentation OPTIONAL)
install(DIRECTORY docs installers DESTINATION share/doc/sorrel COMPONENT documentation)

install(TARGETS kelvo_simulator_bthprops kelvo_simulator_difxapi LIBRARY DESTINATION share/sorrel/simulator
  COMPONENT simulator)
install(FILES simulator/Tessalin.inf DESTINATION share/sorrel/simulator COMPONENT simulator)

install(TARGETS kelvo_lib EXPORT kelvo ARCHIVE DESTINATION lib COMPONENT sdk)
install(DIRECTORY lib DESTINATION include/kelvo COMPONENT sdk
  FILES_MATCHING PATTERN "*.h" PATTERN internal EXCLUDE)
install(EXPORT kelvo FILE kelvo-config.cmake NAMESPACE kelvo:: DESTINATION lib/cmake/kelvo COMPONENT sdk)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kelvo-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kelvo-config-version.cmake DESTINATION lib/cmake/kelvo COMPONENT sdk)
install(FILES docs/library.md CHANGELOG.md DESTINATION share/doc/kelvo COMPONENT sdk OPTIONAL)
install(DIRECTORY examples/consumer DESTINATION share/doc/kelvo/examples COMPONENT sdk)
