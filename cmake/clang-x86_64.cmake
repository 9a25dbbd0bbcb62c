# Cross build for 64-bit Windows with clang instead of GCC: MinGW-w64's headers, libraries and libstdc++ are the same.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")

# clang does not find the folder of the posix flavour by itself.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
                OUTPUT_VARIABLE TESSEL_GCC_FOLDER OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(TESSEL_GCC_FOLDER "${TESSEL_GCC_FOLDER}" DIRECTORY)
set(headers "${TESSEL_GCC_FOLDER}/include/c++")
set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES "${headers}" "${headers}/${TESSEL_TRIPLET}" "${headers}/backward")
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT
        "-B${TESSEL_GCC_FOLDER} -L${TESSEL_GCC_FOLDER} --ld-path=/usr/bin/${TESSEL_TRIPLET}-ld -pthread")
endforeach()

set(CMAKE_DLLTOOL ${TESSEL_TRIPLET}-dlltool)  # the compiler's own makes no delayed imports
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-windows-gnu)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-windows-gnu)

# The heap of stress/fuzz aligns a block no more than its size asks for, so that it ends at the page behind it.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fnew-alignment=8>)
