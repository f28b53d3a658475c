# Installation: libraries, one include directory for each layer under include/ovr, the program, and a package that
# find_package(OVRQRTVdbAttrEO2) finds.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/OVRQRTVdbAttrEO2")

get_property(layers GLOBAL PROPERTY OVR_LAYERS)
foreach(layer IN LISTS layers)
    get_property(dir GLOBAL PROPERTY OVR_LAYER_DIR_${layer})
    file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${dir}/*.h")
    set(include_dir "${CMAKE_INSTALL_INCLUDEDIR}/ovr/${layer}")
    # A folder without headers is an include directory all the same, and must exist.
    install(DIRECTORY DESTINATION "${include_dir}")
    install(FILES ${headers} DESTINATION "${include_dir}")
endforeach()

set(installed_targets ${layers})
if(TARGET OVRQRTVdbAttrEO2)
    list(APPEND installed_targets OVRQRTVdbAttrEO2)
endif()
install(TARGETS ${installed_targets}
    EXPORT OVRQRTVdbAttrEO2Targets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT OVRQRTVdbAttrEO2Targets NAMESPACE OVR:: DESTINATION "${package_dir}")

if(TARGET vdbattr)
    install(TARGETS vdbattr RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/OVRQRTVdbAttrEO2Config.cmake.in"
    "${CMAKE_CURRENT_BINARY_DIR}/OVRQRTVdbAttrEO2Config.cmake"
    INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file(
    "${CMAKE_CURRENT_BINARY_DIR}/OVRQRTVdbAttrEO2ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/OVRQRTVdbAttrEO2Config.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/OVRQRTVdbAttrEO2ConfigVersion.cmake"
    DESTINATION "${package_dir}")
