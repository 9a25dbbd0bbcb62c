# cmake -DBUILD=<build tree> -DINSTALLED=<folder> -P Install.cmake: installs afresh, so that nothing of an earlier
# installation hides what is missing now.
file(REMOVE_RECURSE "${INSTALLED}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${INSTALLED}"
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
