// The window half of the class library: command targets, graphics objects, windows, menus, controls, frames,
// dialogs and the program object.
#pragma once

#include <afx.h>
#include <afxcoll.h>
#include <atltypes.h>

#include <commdlg.h>
#include <shellapi.h>

#include <afxres.h>
#include <afxcmd_.h>
#include <afxmsg_.h>
#include <afxgdi_.h>
// Controls, dialogs and frames have a Create of their own that hides the one of CWnd, as in the class
// library. With a using-declaration the frame's would be ambiguous when the menu is NULL.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
#include <afxwnd_.h>
#include <afxctl_.h>
#include <afxapp_.h>
#include <afxfrm_.h>
#include <afxdd_.h>
#pragma GCC diagnostic pop

struct CPrintInfo;
struct CCreateContext;
