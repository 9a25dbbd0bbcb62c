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
#include <afxwnd_.h>
#include <afxctl_.h>
#include <afxapp_.h>
#include <afxfrm_.h>

struct CPrintInfo;
struct CCreateContext;
