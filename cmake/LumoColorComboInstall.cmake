# What `cmake --install` puts under the prefix: the shared library, the public headers
# under include/LumoColorCombo (with the generated export header), and the CMake
# package (config, version file, exported target). The Designer plugin installs itself
# from src/designer when it is built.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(LUMO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/LumoColorCombo)

install(TARGETS lumo_widgets EXPORT LumoColorComboTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/LumoColorCombo ${LUMO_EXPORT_DIR}/LumoColorCombo
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(EXPORT LumoColorComboTargets NAMESPACE LumoColorCombo:: DESTINATION ${LUMO_CMAKE_DIR})

if(TARGET lumo_designer)
  set(LUMO_WITH_DESIGNER_PLUGIN TRUE)
else()
  set(LUMO_WITH_DESIGNER_PLUGIN FALSE)
  set(LUMO_DESIGNER_PLUGIN_DIR "")
endif()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/LumoColorComboConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/LumoColorComboConfig.cmake
                              INSTALL_DESTINATION ${LUMO_CMAKE_DIR}
                              PATH_VARS LUMO_DESIGNER_PLUGIN_DIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/LumoColorComboConfigVersion.cmake
                                 VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/LumoColorComboConfig.cmake ${PROJECT_BINARY_DIR}/LumoColorComboConfigVersion.cmake
        DESTINATION ${LUMO_CMAKE_DIR})
