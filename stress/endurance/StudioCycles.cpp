#include "stress/endurance/Cycles.h"
#include "stress/endurance/Meter.h"

#include "studio/app/MainFrame.h"
#include "studio/document/DemoProject.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"

namespace endurance {

using namespace Studio;

namespace {

class Host : public CWnd, public CanvasListener {
public:
    Host() {
        CreateEx(0, AfxRegisterWndClass(0), L"Host", WS_POPUP | WS_VISIBLE, 20, 20, 820, 620, nullptr,
                 nullptr);
        document = new StudioDocument(*this, *this);
        document->NewFile(MakeDemoProject());
        Page().MoveWindow(0, 0, 800, 600);
        Page().ShowWindow(SW_SHOW);
    }
    ~Host() override {
        document->Release();
        DestroyWindow();
    }
    StudioCanvas& Page() { return *document->CurrentPage(); }

    StudioDocument* document;

private:
    void OnCanvasState(StudioCanvas&) override {}
    void OnCanvasPointer(StudioCanvas&, const CPoint*) override {}
    void OnCanvasMenu(StudioCanvas&, CPoint) override {}
};

// Steps that are undone when others follow are forgotten: the history does not grow.
void EditAndUndo(Host& host) {
    SelectAll(host.Page());
    GroupSelection(host.Page());
    UngroupSelection(host.Page());
    DeleteSelection(host.Page());
    while (host.document->Edits().Undo()) {
    }
}

void UseClipboard(CWnd& owner) {
    static const UINT format = ::RegisterClipboardFormat(L"Endurance");
    if (!::OpenClipboard(owner.m_hWnd))
        return;
    ::EmptyClipboard();
    ::SetClipboardData(format, ::GlobalAlloc(GMEM_MOVEABLE, 70000));
    ::CloseClipboard();
    if (::OpenClipboard(owner.m_hWnd)) {
        ::GetClipboardData(format);
        ::CloseClipboard();
    }
}

}  // namespace

bool EndureStudio(int cycles) {
    bool flat = true;
    bool done = true;
    {
        Host host;
        WCHAR folder[MAX_PATH];
        ::GetTempPath(MAX_PATH, folder);
        CString path;
        path.Format(L"%sendurance-%lu-studio.cbf", folder, ::GetCurrentProcessId());
        flat &= Endure("Studio: edits, undo, saves and loads", cycles, [&](int) {
            EditAndUndo(host);
            done = host.document->Save(path) && host.document->Load(path) && done;
        });
        ::DeleteFile(path);
        flat &= Endure("Studio: pages added, duplicated, removed", cycles, [&](int) {
            done = host.document->AddPage(0) && host.document->DuplicatePage(0) && done;
            while (host.document->Edits().Undo()) {
            }
        });
        const size_t platform = GrowthOfPlatform("blocks put on the clipboard and taken", cycles,
                                                 [&](int) { UseClipboard(host); });
        int copied = 0;
        const auto paste = [&](int) {
            SelectAll(host.Page());
            copied += CopySelection(host.Page()) ? 1 : 0;
            PasteObjects(host.Page());
            host.Page().UpdateWindow();
            while (host.document->Edits().Undo()) {
            }
        };
        flat &= Endure("Studio: copies pasted and undone", cycles, paste, platform);
        // Another program may have the clipboard now and then.
        done = done && copied > cycles / 2;
    }
    flat &= Endure("Studio: main windows opened, run and closed", cycles / 20, [&](int) {
        auto* frame = new MainFrame;
        done = frame->CreateFrame() && done;
        frame->ShowWindow(SW_SHOW);
        frame->OpenDemo();
        frame->SetRunning(true);
        frame->UpdateWindow();
        frame->SetRunning(false);
        frame->DestroyWindow();
    });
    return flat && done;
}

}  // namespace endurance
