# Installs the library into the build tree, builds the host of tests/host/ against that, and runs it.
set(installed "${CMAKE_BINARY_DIR}/installed")
set(host "${CMAKE_BINARY_DIR}/host")

add_test(NAME host_install
         COMMAND "${CMAKE_COMMAND}" "-DBUILD=${CMAKE_BINARY_DIR}" "-DINSTALLED=${installed}"
                 -P "${CMAKE_CURRENT_SOURCE_DIR}/host/Install.cmake")
add_test(NAME host_build
         COMMAND "${CMAKE_CTEST_COMMAND}" --build-and-test "${CMAKE_CURRENT_SOURCE_DIR}/host" "${host}"
                 --build-generator "${CMAKE_GENERATOR}" --build-noclean
                 --build-options "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE}"
                                 "-DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}"
                                 "-DCMAKE_COMPILE_WARNING_AS_ERROR=$<BOOL:${TESSEL_WARNINGS_ARE_ERRORS}>"
                                 "-DTesselCtrls_DIR=${installed}/lib/cmake/TesselCtrls")
add_test(NAME host COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} "${host}/host.exe")

set_tests_properties(host_install PROPERTIES FIXTURES_SETUP installed)
set_tests_properties(host_build PROPERTIES FIXTURES_REQUIRED installed FIXTURES_SETUP built_host)
set_tests_properties(host PROPERTIES FIXTURES_REQUIRED built_host)
if(CMAKE_CROSSCOMPILING)
    set_tests_properties(host PROPERTIES ENVIRONMENT "WINEPATH=Z:${installed}/bin")
else()
    set_tests_properties(host PROPERTIES ENVIRONMENT_MODIFICATION "PATH=path_list_prepend:${installed}/bin")
endif()
