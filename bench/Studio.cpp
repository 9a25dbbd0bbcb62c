// Studio: undo on a large page, and a timer tick of a running page.
#include "bench/Memory.h"
#include "bench/Table.h"

#include "studio/document/ObjectExtras.h"
#include "studio/document/StudioDocument.h"
#include "studio/editing/PageEdits.h"
#include "studio/editing/PageTool.h"
#include "studio/runtime/RunSession.h"

using namespace Lumo;
using namespace Studio;

namespace bench {

namespace {

// A document with one shown page, and nobody who wants to hear of it.
class StudioPage : public CanvasListener, public RunHost {
public:
    StudioPage() {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, 0, 0, 1280, 800, nullptr,
                        nullptr);
        document = new StudioDocument(parent, *this);
        document->NewFile();
        Canvas().MoveWindow(0, 0, 1280, 800);
        Canvas().ShowWindow(SW_SHOWNA);
        ChooseTool(Canvas(), DS_SELECT);
    }
    ~StudioPage() override { document->Release(); }
    StudioPage(const StudioPage&) = delete;
    StudioPage& operator=(const StudioPage&) = delete;

    StudioCanvas& Canvas() { return *document->CurrentPage(); }

    CUIObject* Add(DrawShape kind, const Gdiplus::RectF& place) {
        CUIObject* object = MakeDrawnObject(kind, place).release();
        object->SetDocument(document);
        object->SetCanvas(&Canvas());
        document->AppendObject(object, &Canvas());
        return object;
    }

    void OnCanvasState(StudioCanvas&) override {}
    void OnCanvasPointer(StudioCanvas&, const CPoint*) override {}
    void OnCanvasMenu(StudioCanvas&, CPoint) override {}
    void GoToPage(const CString&) override {}
    void GoToPage(int) override {}
    void StepPage(int) override {}
    bool Confirm(const CString&) override { return false; }
    void EnterNumber(int, const Gdiplus::RectF&) override {}

    CWnd parent;
    StudioDocument* document = nullptr;
};

void MeasureUndo(std::vector<Line>& lines) {
    StudioPage page;
    for (int i = 0; i < 10000; ++i) {
        const int row = i / 125;
        page.Add(DS_RECTANGLE, {static_cast<float>(i % 125) * 10.0f, static_cast<float>(row) * 9.0f, 8, 7});
    }
    page.Canvas().SelectOnly({(*page.Canvas().Objects())[5000]});
    constexpr int kSteps = 20000;
    const size_t before = PrivateBytes();
    for (int i = 0; i < kSteps; ++i) {
        page.Canvas().Edits().BreakMerging();
        NudgeSelection(page.Canvas(), i % 2 ? 1.0f : -1.0f, 0);
    }
    const double kept = static_cast<double>(PrivateBytes() - before) / kSteps;
    std::vector<double> seconds(100);
    for (double& second : seconds)
        second = Seconds([&] { page.Canvas().Edits().Undo(); });
    lines.push_back({"undo of one move on a page of 10,000 objects in Studio", Median(seconds) * 1e3, "ms",
                     10, false, std::to_string(static_cast<int>(kept)) + " bytes kept per step"});
}

double ProcessorSeconds() {
    FILETIME unused;
    FILETIME kernel;
    FILETIME user;
    ::GetProcessTimes(::GetCurrentProcess(), &unused, &unused, &kernel, &user);
    const auto seconds = [](const FILETIME& time) {
        return (static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime) / 1e7;
    };
    return seconds(kernel) + seconds(user);
}

// Shapes whose fill or text follows a level, and level meters.
void FillLive(StudioPage& page) {
    for (int i = 0; i < 200; ++i) {
        const int row = i / 20;
        const Gdiplus::RectF place(static_cast<float>(i % 20) * 62.0f, static_cast<float>(row) * 70.0f, 56,
                                   60);
        CString value;
        value.Format(L"in%d.level", i % 16 + 1);
        if (i % 4 == 0) {
            EditExtras(*page.Add(DS_BUTTONLEVEL, place))->binding = value;
            continue;
        }
        ObjectExtras& extras = *EditExtras(*page.Add(i % 2 ? DS_RECTANGLE : DS_ELLIPSE, place));
        const Behaviour behaviour = i % 4 == 2 ? Behaviour::kText : Behaviour::kFill;
        extras.TurnOn(behaviour, true);
        extras.Record(behaviour).m_strName = value;
    }
}

void MeasureTick(std::vector<Line>& lines) {
    StudioPage page;
    FillLive(page);
    Device device;
    RunSession session(*page.document, device, page);
    constexpr double kTick = 1.0 / 30.0;
    const auto tick = [&] {
        session.Tick(kTick);
        page.Canvas().UpdateWindow();
    };
    for (int i = 0; i < 10; ++i)
        tick();
    constexpr int kTicks = 150;
    const double before = ProcessorSeconds();
    for (int i = 0; i < kTicks; ++i)
        tick();
    const double share = (ProcessorSeconds() - before) / kTicks / kTick;
    lines.push_back({"timer tick with 200 live objects in Studio at 30 a second, of one core", share, "cores",
                     0.333, false, std::to_string(session.LiveCount()) + " live"});
}

}  // namespace

void MeasureStudio(std::vector<Line>& lines) {
    MeasureUndo(lines);
    MeasureTick(lines);
}

}  // namespace bench
