// Studio's document with real windows, as the program has it.
#pragma once

#include "Mutation.h"

#include "studio/document/StudioDocument.h"
#include "studio/runtime/RunSession.h"

class StudioHost : public Studio::CanvasListener, public Studio::RunHost {
public:
    /// The one of this process, made at the first call.
    static StudioHost& Get();

    /// Loads or recovers a file into the document that is open. A refusal must leave it as it is. Throws
    /// `Fault`.
    bool LoadFile(CString path, bool recover, bool use);
    /// Pastes clipboard bytes onto an empty page, undoes that and does it again. Throws `Fault`.
    bool Paste(const Bytes& input);

    StudioHost(const StudioHost&) = delete;
    StudioHost& operator=(const StudioHost&) = delete;

private:
    StudioHost();

    Bytes Archived();
    void Run();
    void Edit();

    void OnCanvasState(Studio::StudioCanvas&) override {}
    void OnCanvasPointer(Studio::StudioCanvas&, const CPoint*) override {}
    void OnCanvasMenu(Studio::StudioCanvas&, CPoint) override {}
    void GoToPage(const CString&) override {}
    void GoToPage(int) override {}
    void StepPage(int) override {}
    bool Confirm(const CString&) override { return true; }
    void EnterNumber(int, const Gdiplus::RectF&) override {}

    CWnd m_parent;
    Studio::StudioDocument* m_document;
};
