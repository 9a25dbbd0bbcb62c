# Makes the package of the release build and uses it as a stranger does: unpacked, away from the build tree.
set(folder "${PROJECT_SOURCE_DIR}/build/package")
set(package "${folder}/${TESSEL_PACKAGE}.zip")

add_test(NAME package_make COMMAND "${CMAKE_CPACK_COMMAND}" --config "${CMAKE_BINARY_DIR}/CPackConfig.cmake" -B "${folder}")
add_test(NAME package_use COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/package/use.sh" "${package}" "${folder}/used")
add_test(NAME package_guide
         COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/guide/follow.sh"
                 "${PROJECT_SOURCE_DIR}/docs/guide.md" "${package}" "${folder}/guide")
set_tests_properties(package_make PROPERTIES FIXTURES_SETUP package)
set_tests_properties(package_use package_guide PROPERTIES FIXTURES_REQUIRED package)
set_tests_properties(package_make package_use package_guide PROPERTIES LABELS package TIMEOUT 600)
