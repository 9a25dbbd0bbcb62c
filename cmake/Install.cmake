# What a host needs to build against the library and to run with it: include/, lib/, bin/ and a package file for
# find_package(TesselCtrls). The folders under include/tesselctrls/ are the ones that the headers name.
foreach(folder core appearance canvas behaviour window)
    file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.h")
    install(FILES ${headers} DESTINATION include/tesselctrls/${folder})
endforeach()
install(DIRECTORY marrowlog/include/ DESTINATION include/marrowlog)

set(libraries TesselCtrls MarrowLog)
if(TESSEL_MFC STREQUAL "bundled")
    list(APPEND libraries TesselAfx tessel_afx_main)
    install(DIRECTORY afx/include/ DESTINATION include/afx)
endif()
install(TARGETS ${libraries} RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
foreach(dll ${TESSEL_RUNTIME_DLLS})
    install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll}" DESTINATION bin)
endforeach()
install(FILES cmake/TesselCtrlsConfig.cmake DESTINATION lib/cmake/TesselCtrls)
