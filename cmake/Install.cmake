# What a host needs to build against the library and to run with it, Studio and the documents: as an installation
# (cmake --install) and as one zip file (cpack). The package has no path of the machine that made it.
include(CMakePackageConfigHelpers)

set(package lib/cmake/TesselCtrls)
function(install_library target includes)
    install(TARGETS ${target} EXPORT TesselCtrlsTargets
            RUNTIME DESTINATION bin
            ARCHIVE DESTINATION lib
            FILE_SET HEADERS DESTINATION include/${includes})
endfunction()
install_library(TesselCtrls tesselctrls)
install_library(MarrowLog marrowlog)
install_library(TesselAfx afx)
install(TARGETS tessel_afx_main EXPORT TesselCtrlsTargets ARCHIVE DESTINATION lib)
install(EXPORT TesselCtrlsTargets NAMESPACE TesselCtrls:: DESTINATION ${package})
configure_file(cmake/TesselCtrlsConfig.cmake.in TesselCtrlsConfig.cmake @ONLY)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/TesselCtrlsConfigVersion.cmake"
                                 COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/TesselCtrlsConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/TesselCtrlsConfigVersion.cmake"
        DESTINATION ${package})
if(CMAKE_CROSSCOMPILING)
    # A host is cross-compiled with the same description of the compiler as the library.
    install(FILES "${CMAKE_TOOLCHAIN_FILE}" cmake/mingw-w64.cmake DESTINATION ${package})
    install(PROGRAMS cmake/wine-launcher.sh DESTINATION ${package})
endif()

foreach(dll ${TESSEL_RUNTIME_DLLS})
    install(PROGRAMS "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll}" DESTINATION bin)
    # The compiler's come with their symbols: 24 MB instead of 2.
    install(CODE "if(CMAKE_INSTALL_DO_STRIP)
        execute_process(COMMAND \"${CMAKE_STRIP}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/${dll}\")
    endif()")
endforeach()
install(TARGETS Studio RUNTIME DESTINATION bin)
install(DIRECTORY studio/symbols DESTINATION bin)
install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/demo.cbf" DESTINATION bin OPTIONAL)  # the target demo_project makes it

configure_file(cmake/PackageReadme.md.in package/README.md @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/package/README.md" CHANGELOG.md DESTINATION .)
install(DIRECTORY docs DESTINATION . FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg" PATTERN api EXCLUDE)
install(DIRECTORY "${CMAKE_BINARY_DIR}/api/html/" DESTINATION docs/api OPTIONAL)  # the target api_reference makes it
install(DIRECTORY examples DESTINATION .)

math(EXPR bits "8 * ${CMAKE_SIZEOF_VOID_P}")
set(TESSEL_PACKAGE "${PROJECT_NAME}-${PROJECT_VERSION}-win${bits}")
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "${TESSEL_PACKAGE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Drawing objects on canvas pages that become live controls")
set(CPACK_STRIP_FILES ON)
include(CPack)
