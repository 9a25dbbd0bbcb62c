# find_package(TesselCtrls): the installed library as Tessel::Ctrls, and Tessel::AfxMain, the entry point for a
# program with a program object. Programs need the DLLs of bin/ beside them or on their path.
get_filename_component(tessel_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

# tessel_import(name dll includes libraries): one installed DLL with its import library.
function(tessel_import name dll includes libraries)
    if(TARGET Tessel::${name})
        return()
    endif()
    add_library(Tessel::${name} SHARED IMPORTED)
    set_target_properties(Tessel::${name} PROPERTIES
        IMPORTED_LOCATION "${tessel_prefix}/bin/${dll}.dll"
        IMPORTED_IMPLIB "${tessel_prefix}/lib/lib${dll}.dll.a"
        INTERFACE_INCLUDE_DIRECTORIES "${tessel_prefix}/include/${includes}"
        INTERFACE_COMPILE_FEATURES cxx_std_20
        INTERFACE_LINK_LIBRARIES "${libraries}")
endfunction()

if(EXISTS "${tessel_prefix}/include/afx")
    tessel_import(Afx TesselAfx afx "user32;gdi32;comdlg32;comctl32;ole32;oleaut32;oledlg;shell32;advapi32;uuid")
    set_property(TARGET Tessel::Afx PROPERTY
        INTERFACE_COMPILE_DEFINITIONS UNICODE _UNICODE _WIN32_WINNT=0x0601 WINVER=0x0601)
    if(NOT TARGET Tessel::AfxMain)
        add_library(Tessel::AfxMain STATIC IMPORTED)
        set_target_properties(Tessel::AfxMain PROPERTIES
            IMPORTED_LOCATION "${tessel_prefix}/lib/libtessel_afx_main.a"
            INTERFACE_LINK_LIBRARIES Tessel::Afx
            INTERFACE_LINK_OPTIONS "LINKER:-u,WinMain")
    endif()
    set(tessel_class_library Tessel::Afx)
endif()
tessel_import(MarrowLog MarrowLog marrowlog "${tessel_class_library}")
tessel_import(Ctrls TesselCtrls tesselctrls "Tessel::MarrowLog;${tessel_class_library};gdiplus")
unset(tessel_class_library)
