# Options every target of the project shares, and the run-time DLLs of the compiler beside the programs.

add_library(tessel_options INTERFACE)
target_compile_definitions(tessel_options INTERFACE UNICODE _UNICODE _WIN32_WINNT=0x0601 WINVER=0x0601)
target_include_directories(tessel_options INTERFACE "${PROJECT_SOURCE_DIR}")
if(MINGW)
    target_compile_options(tessel_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Werror>)
    # With optimisation this compiler's library headers set these two off where nothing is wrong.
    target_compile_options(tessel_options INTERFACE
        $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<NOT:$<CONFIG:Debug>>>:-Wno-array-bounds -Wno-stringop-overflow>)
endif()

# Sources of one folder: every .cpp directly in its src/.
function(tessel_sources out folder)
    file(GLOB found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/src/*.cpp")
    set(${out} ${found} PARENT_SCOPE)
endfunction()

if(MINGW)
    set(TESSEL_RUNTIME_DLLS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    foreach(dll ${TESSEL_RUNTIME_DLLS})
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(NOT EXISTS "${path}")
            set(path "/usr/${TESSEL_TRIPLET}/lib/${dll}")
        endif()
        file(COPY "${path}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    endforeach()
endif()
