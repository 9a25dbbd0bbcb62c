# Options every target of the project shares, version resources, and the run-time DLLs of the compiler beside the
# programs.

# Nothing of this is for hosts: it reaches the project's own targets through the class library.
add_library(tessel_options INTERFACE)
target_include_directories(tessel_options INTERFACE "${PROJECT_SOURCE_DIR}")
if(MINGW)
    target_compile_options(tessel_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic>)
    # The compilers that the tree was tried with. Another one finds other things to warn of, which stop nobody's build.
    set(compilers_tried GNU-12 GNU-14 Clang-14)
    string(REGEX MATCH "^[0-9]+" compiler_version "${CMAKE_CXX_COMPILER_VERSION}")
    if("${CMAKE_CXX_COMPILER_ID}-${compiler_version}" IN_LIST compilers_tried)
        set(TESSEL_WARNINGS_ARE_ERRORS ON)
        target_compile_options(tessel_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Werror>)
    endif()
    # With optimisation this compiler's library headers set these two off where nothing is wrong.
    target_compile_options(tessel_options INTERFACE
        $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<NOT:$<CONFIG:Debug>>>:-Wno-array-bounds -Wno-stringop-overflow>)
elseif(MSVC)
    target_compile_options(tessel_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/utf-8>)
endif()

# Sources of one folder: every .cpp directly in its src/.
function(tessel_sources out folder)
    file(GLOB found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/src/*.cpp")
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# tessel_headers(target base patterns...): the public headers of a library. Hosts name them as they stand below `base`;
# the target all_verify_interface_header_sets compiles each on its own.
function(tessel_headers target base)
    list(TRANSFORM ARGN PREPEND "${base}/")
    file(GLOB found CONFIGURE_DEPENDS ${ARGN})
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${base}" FILES ${found})
    set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()

# tessel_version(target description): what Windows shows of a DLL or a program, from the version of the project.
function(tessel_version target description)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        set(kind VFT_APP)
        set(suffix .exe)
    else()
        set(kind VFT_DLL)
        set(suffix .dll)
    endif()
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Version.rc.in" "${resource}" @ONLY)
    target_sources(${target} PRIVATE "${resource}")
endfunction()

set(TESSEL_RUNTIME_DLLS)
if(MINGW)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        set(TESSEL_RUNTIME_DLLS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    else()
        set(TESSEL_RUNTIME_DLLS libstdc++-6.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
    endif()
    get_filename_component(compiler_folder "${CMAKE_CXX_COMPILER}" DIRECTORY)
    foreach(dll ${TESSEL_RUNTIME_DLLS})
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        foreach(other ${TESSEL_GCC_FOLDER} "${compiler_folder}" "/usr/${TESSEL_TRIPLET}/lib")
            if(NOT EXISTS "${path}")
                set(path "${other}/${dll}")
            endif()
        endforeach()
        file(COPY "${path}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    endforeach()
endif()
