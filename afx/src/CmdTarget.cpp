#include <afxwin.h>

#include "CommandMessages.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP messageMap = {nullptr, entries};
    return &messageMap;
}

const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (entry->nMessage == message && entry->nCode == code && entry->nID <= id &&
                id <= entry->nLastID)
                return entry;
        }
    }
    return nullptr;
}

namespace {

template <class Result, class... Arguments>
Result Invoke(CCmdTarget* target, AFX_PMSG handler, Arguments... arguments) {
    using Handler = Result (CCmdTarget::*)(Arguments...);
    return (target->*std::bit_cast<Handler>(handler))(arguments...);
}

BOOL UpdateUI(CCmdTarget* target, AFX_PMSG handler, CCmdUI* ui) {
    ui->m_bContinueRouting = FALSE;
    Invoke<void, CCmdUI*>(target, handler, ui);
    BOOL isHandled = !ui->m_bContinueRouting;
    ui->m_bContinueRouting = FALSE;
    return isHandled;
}

/// Calls a command, notification or update handler; false lets the search go on elsewhere.
BOOL Dispatch(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra) {
    auto* notify = static_cast<NotifyMessage*>(extra);
    switch (entry.nSig) {
        case AfxSigCmd_v:
            Invoke<void>(target, entry.pfn);
            return TRUE;
        case AfxSigCmd_RANGE:
            Invoke<void, UINT>(target, entry.pfn, id);
            return TRUE;
        case AfxSigCmd_EX:
            return Invoke<BOOL, UINT>(target, entry.pfn, id);
        case AfxSigCmd_b:
            return Invoke<BOOL>(target, entry.pfn);
        case AfxSigNotify_b:
            return Invoke<BOOL, NMHDR*, LRESULT*>(target, entry.pfn, notify->header, notify->result);
        case AfxSigNotify_v:
            Invoke<void, NMHDR*, LRESULT*>(target, entry.pfn, notify->header, notify->result);
            return TRUE;
        case AfxSigNotify_RANGE:
            Invoke<void, UINT, NMHDR*, LRESULT*>(target, entry.pfn, id, notify->header, notify->result);
            return TRUE;
        case AfxSigCmdUI:
            return UpdateUI(target, entry.pfn, static_cast<CCmdUI*>(extra));
        default:
            return FALSE;
    }
}

}  // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    UINT message = WM_COMMAND;
    UINT code = static_cast<UINT>(nCode);
    if (nCode != CN_UPDATE_COMMAND_UI) {
        if (HIWORD(nCode) != 0)
            message = HIWORD(nCode);
        code = LOWORD(nCode);
    }
    const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(GetMessageMap(), message, code, nID);
    if (!entry)
        return FALSE;
    if (pHandlerInfo) {
        *pHandlerInfo = {this, entry->pfn};
        return TRUE;
    }
    return Dispatch(this, *entry, nID, pExtra);
}

void CCmdTarget::OnFinalRelease() {
    delete this;
}

DWORD CCmdTarget::InternalAddRef() {
    return static_cast<DWORD>(::InterlockedIncrement(&m_dwRef));
}

DWORD CCmdTarget::InternalRelease() {
    LONG left = ::InterlockedDecrement(&m_dwRef);
    if (left == 0)
        OnFinalRelease();
    return static_cast<DWORD>(left);
}
