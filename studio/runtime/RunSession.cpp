#include "studio/runtime/RunSession.h"

#include "behaviour/UIObjectList.h"
#include "core/Geometry.h"
#include "studio/document/StudioDocument.h"
#include "studio/editing/Geometry.h"

#include <algorithm>
#include <cmath>

namespace Studio {

using Gdiplus::RectF;
using Lumo::CUICanvas;
using Lumo::CUIObject;

namespace {

// A kind that no drawing tool serves.
constexpr Lumo::DrawShape kRunningKind = Lumo::DS_UNKNOWN;

CRect Pixels(const RectF& area) {
    return {static_cast<int>(std::floor(area.X)), static_cast<int>(std::floor(area.Y)),
            static_cast<int>(std::ceil(area.X + area.Width)),
            static_cast<int>(std::ceil(area.Y + area.Height))};
}

// Joins rectangles that overlap, so that no pixel is painted twice.
void JoinOverlapping(std::vector<CRect>& areas) {
    for (size_t i = 0; i < areas.size(); ++i) {
        for (size_t j = i + 1; j < areas.size();) {
            CRect common;
            if (!common.IntersectRect(areas[i], areas[j])) {
                ++j;
                continue;
            }
            areas[i].UnionRect(areas[i], areas[j]);
            areas[j] = areas.back();
            areas.pop_back();
            j = i + 1;
        }
    }
}

}  // namespace

RunSession::RunSession(StudioDocument& document, Device& device, RunHost& host)
    : CUIRunningTool(kRunningKind),
      m_document(document),
      m_device(device),
      m_host(host),
      m_toolBefore(CUIToolBase::run_drawshape) {
    m_tools.pop_back();
    m_tools.push_front(this);
    for (const Page& page : document.Pages())
        Prepare(*page.canvas);
    run_drawshape = kRunningKind;
}

RunSession::~RunSession() {
    LetGo();
    run_drawshape = m_toolBefore;
    for (auto& [canvas, running] : m_pages) {
        canvas->SetOperator(nullptr);
        canvas->m_nMode = running.mode;
        running.live.clear();
        canvas->m_selection = running.selection;
        if (canvas->m_hWnd)
            canvas->Invalidate(FALSE);
    }
}

void RunSession::Prepare(StudioCanvas& canvas) {
    RunningPage& page = m_pages[&canvas];
    page.mode = canvas.m_nMode;
    page.selection.swap(canvas.m_selection);
    if (const auto* objects = canvas.Objects()) {
        for (CUIObject* object : *objects) {
            if (object && !object->GetRemoved())
                Show(page, *object);
        }
    }
    ChooseGround(page);
    canvas.OnModeRunning();
    canvas.SetOperator(this);
    if (canvas.m_hWnd)
        canvas.Invalidate(FALSE);
}

void RunSession::Show(RunningPage& page, CUIObject& object) {
    const size_t before = page.live.size();
    std::vector<CUIObject*> groups;
    Collect(page, object, groups);
    const bool runs = page.live.size() > before;
    ObjectRun* own = runs && &page.live[before]->Object() == &object ? page.live[before].get() : nullptr;
    const bool isGroup = object.GetDrawShape() == Lumo::DS_GROUP;
    // Children that run may leave their group.
    const RectF reach = runs && isGroup
                            ? kEverywhere
                            : Lumo::Inflated(Lumo::Normalised(object.GetPosition()), PaintMargin(object));
    const bool mayMove = isGroup || (own && own->MayMove());
    page.shown.push_back({&object, isGroup ? nullptr : own, reach, runs, mayMove});
}

// An object that never changes is part of the ground unless something that may change lies under it.
void RunSession::ChooseGround(RunningPage& page) {
    std::vector<RectF> above;
    for (Shown& shown : page.shown) {
        const auto covers = [&](const RectF& other) { return other.IntersectsWith(shown.reach) != FALSE; };
        shown.inGround = !shown.runs && std::none_of(above.begin(), above.end(), covers);
        if (!shown.inGround)
            above.push_back(shown.mayMove ? kEverywhere : shown.reach);
    }
}

void RunSession::PaintGround(RunningPage& page, CSize size) {
    page.ground.Fit(size);
    page.ground.Paint(CRect(CPoint(0, 0), size), page.origin, nullptr, [&](Gdiplus::Graphics& g) {
        for (const Shown& shown : page.shown) {
            if (shown.inGround)
                shown.object->Draw(&g);
        }
    });
}

// In drawing order: the last one is on top.
void RunSession::Collect(RunningPage& page, CUIObject& object, std::vector<CUIObject*>& groups) {
    if (ObjectRun::Concerns(object))
        page.live.push_back(std::make_unique<ObjectRun>(object, m_device, m_host, groups));
    if (auto* group = dynamic_cast<Lumo::CUIObjectList*>(&object)) {
        groups.push_back(&object);
        for (CUIObject* child : group->GetChildren())
            Collect(page, *child, groups);
        groups.pop_back();
    }
}

RunSession::RunningPage* RunSession::Current() {
    const auto found = m_pages.find(m_document.CurrentPage());
    return found == m_pages.end() ? nullptr : &found->second;
}

size_t RunSession::LiveCount() {
    const RunningPage* page = Current();
    return page ? page->live.size() : 0;
}

void RunSession::Tick(double seconds) {
    m_time += seconds;
    m_device.Tick(seconds);
    Update();
}

void RunSession::Update() {
    RunningPage* running = Current();
    if (!running)
        return;
    m_dirty.clear();
    for (const auto& run : running->live)
        run->Update(m_time, m_dirty);
    PaintDirty(*m_document.CurrentPage(), *running, m_dirty);
}

void RunSession::PageShown() {
    LetGo();
    if (RunningPage* running = Current())
        running->whole = true;
    Update();
    if (StudioCanvas* page = m_document.CurrentPage(); page && page->m_hWnd)
        page->Invalidate(FALSE);
}

void RunSession::PaintDirty(StudioCanvas& page, RunningPage& running, std::vector<RectF>& dirty) {
    // A page that was scrolled is painted whole before long.
    if (dirty.empty() || !page.m_hWnd || !page.IsWindowVisible() || running.whole ||
        running.origin != page.ScrollOrigin())
        return;
    const CRect window(CPoint(0, 0), running.buffer.Size());
    std::vector<CRect> areas;
    for (const RectF& area : dirty) {
        CRect pixels = (Pixels(area) - running.origin) & window;
        if (!pixels.IsRectEmpty())
            areas.push_back(pixels);
    }
    JoinOverlapping(areas);
    CClientDC dc(&page);
    for (const CRect& area : areas) {
        PaintPart(running, area);
        running.buffer.Show(dc, area);
    }
}

void RunSession::PaintPart(RunningPage& running, const CRect& part) {
    m_paintedPixels += static_cast<long long>(part.Width()) * part.Height();
    const RectF area = Lumo::RectGdiFromAtl(part + running.origin);
    running.buffer.Paint(part, running.origin, &running.ground, [&](Gdiplus::Graphics& g) {
        for (Shown& shown : running.shown) {
            if (shown.run && shown.run->TakeMoved())
                shown.reach = shown.run->PaintedBounds();
            if (!shown.inGround && shown.reach.IntersectsWith(area))
                shown.object->Draw(&g);
        }
    });
}

void RunSession::PaintPage(StudioCanvas& page) {
    CPaintDC dc(&page);
    const auto found = m_pages.find(&page);
    if (found == m_pages.end())
        return;
    RunningPage& running = found->second;
    CRect client;
    page.GetClientRect(client);
    if (client.IsRectEmpty())
        return;
    if (running.buffer.Fit(client.Size()) || running.whole || running.origin != page.ScrollOrigin()) {
        running.whole = false;
        running.origin = page.ScrollOrigin();
        // Values may have changed while another page was shown.
        std::vector<RectF> ignored;
        for (const auto& run : running.live)
            run->Update(m_time, ignored);
        PaintGround(running, client.Size());
        PaintPart(running, client);
    }
    running.buffer.Show(dc, dc.m_ps.rcPaint);
}

// `at` in page units, as everywhere in here.
ObjectRun* RunSession::RunAt(CPoint at) {
    RunningPage* running = Current();
    if (!running)
        return nullptr;
    const auto hit = std::find_if(running->live.rbegin(), running->live.rend(),
                                  [&](const auto& run) { return run->Answers(Lumo::PointGdiFromAtl(at)); });
    return hit == running->live.rend() ? nullptr : hit->get();
}

void RunSession::Relay(ObjectRun* run, CUICanvas* canvas, UINT message, UINT flags, CPoint at) {
    if (run)
        run->Object().RelayEvent(canvas, message, flags, MAKELONG(at.x, at.y));
}

void RunSession::SetHover(ObjectRun* run, CUICanvas* canvas) {
    if (run == m_hover)
        return;
    Relay(std::exchange(m_hover, run), canvas, WM_MOUSELEAVE, 0, CPoint(0, 0));
}

void RunSession::Press(CUICanvas* canvas, UINT message, UINT flags, CPoint point) {
    canvas->ClientToDoc(point);
    ObjectRun* run = RunAt(point);
    SetHover(run, canvas);
    m_grabbed = run;
    if (run)
        canvas->SetCapture();
    Relay(run, canvas, message, flags, point);
    Update();
}

void RunSession::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Press(canvas, WM_LBUTTONDOWN, flags, point);
}

void RunSession::OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Press(canvas, WM_LBUTTONDBLCLK, flags, point);
}

void RunSession::OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) {
    CPoint at = point;
    canvas->ClientToDoc(at);
    // Releasing the capture reports a lost one: it comes last, when nothing is grabbed any more.
    Relay(m_grabbed, canvas, WM_LBUTTONUP, flags, at);
    m_grabbed = nullptr;
    m_releasing = true;
    if (::GetCapture() == canvas->m_hWnd)
        ::ReleaseCapture();
    m_releasing = false;
    SetHover(RunAt(at), canvas);
    Update();
}

void RunSession::OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) {
    CPoint at = point;
    canvas->ClientToDoc(at);
    if (!m_grabbed)
        SetHover(RunAt(at), canvas);
    // A button that was pressed beside everything drags nothing that it comes across.
    const UINT own = m_grabbed ? flags : flags & ~MK_LBUTTON;
    Relay(m_grabbed ? m_grabbed : m_hover, canvas, WM_MOUSEMOVE, own, at);
    Update();
}

bool RunSession::Wheel(StudioCanvas& page, UINT flags, short turn, CPoint at) {
    page.ClientToDoc(at);
    ObjectRun* run = RunAt(at);
    Relay(run, &page, WM_MOUSEWHEEL, MAKELONG(flags, turn), at);
    Update();
    return run != nullptr;
}

// Nothing stays pressed or lit on a page that is left, nor when the run ends in the middle of a drag.
void RunSession::LetGo() {
    for (ObjectRun* run : {std::exchange(m_grabbed, nullptr), std::exchange(m_hover, nullptr)})
        Relay(run, m_document.CurrentPage(), WM_MOUSELEAVE, 0, CPoint(0, 0));
    const HWND capture = ::GetCapture();
    for (const auto& [canvas, running] : m_pages) {
        if (capture && capture == canvas->m_hWnd)
            ::ReleaseCapture();
    }
}

// The pointer has left the page, or something has taken the mouse away in the middle of a drag.
void RunSession::PointerLeft(StudioCanvas& page) {
    if (m_releasing || (m_grabbed && ::GetCapture() == page.m_hWnd))
        return;
    ObjectRun* grabbed = std::exchange(m_grabbed, nullptr);
    if (grabbed && grabbed != m_hover)
        Relay(grabbed, &page, WM_MOUSELEAVE, 0, CPoint(0, 0));
    SetHover(nullptr, &page);
    Update();
}

HCURSOR RunSession::CursorAt(StudioCanvas& page, CPoint at) {
    page.ClientToDoc(at);
    return ::LoadCursor(nullptr, m_grabbed || RunAt(at) ? IDC_HAND : IDC_ARROW);
}

}  // namespace Studio
