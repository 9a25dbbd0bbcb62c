#include "studio/app/RunMode.h"

#include "core/Geometry.h"
#include "studio/document/StudioDocument.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr UINT kPause = 1000 / RunMode::kRate;
// After a pause (a menu, a suspended computer) the device does not make up for everything.
constexpr double kLongestTick = 0.5;

}  // namespace

void RunMode::Start(CWnd& frame, StudioDocument& document) {
    if (m_session)
        return;
    m_document = &document;
    m_session = std::make_unique<RunSession>(document, m_device, *this);
    ::QueryPerformanceCounter(&m_last);
    m_session->Update();
    m_timer.Start(frame, kPause, [this] { Tick(); });
}

void RunMode::Stop() {
    m_timer.Stop();
    m_entry.Close();
    m_session.reset();
    m_document = nullptr;
}

void RunMode::PageShown() {
    m_entry.Close();
    if (m_session)
        m_session->PageShown();
}

bool RunMode::CancelEntry() {
    if (!m_entry.IsOpen())
        return false;
    m_entry.GetParent()->SetFocus();
    m_entry.Close();
    return true;
}

void RunMode::Tick() {
    LARGE_INTEGER now, frequency;
    ::QueryPerformanceCounter(&now);
    ::QueryPerformanceFrequency(&frequency);
    const double seconds =
        static_cast<double>(now.QuadPart - m_last.QuadPart) / static_cast<double>(frequency.QuadPart);
    m_last = now;
    m_session->Tick(std::clamp(seconds, 0.0, kLongestTick));
}

void RunMode::GoToPage(const CString& name) {
    const auto& pages = m_document->Pages();
    for (size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].name.CompareNoCase(name) == 0) {
            m_document->ShowPage(static_cast<int>(i));
            return;
        }
    }
}

void RunMode::GoToPage(int number) {
    if (number >= 1 && number <= static_cast<int>(m_document->Pages().size()))
        m_document->ShowPage(number - 1);
}

void RunMode::StepPage(int step) {
    GoToPage(m_document->CurrentIndex() + 1 + step);
}

bool RunMode::Confirm(const CString& question) {
    return AfxMessageBox(question, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void RunMode::EnterNumber(int value, const Gdiplus::RectF& over) {
    StudioCanvas& page = *m_document->CurrentPage();
    CRect area = Lumo::RectAtlFromGdi(over);
    page.DocToClient(area);
    m_entry.Open(page, area, m_device.Get(value), [this, value](double number) {
        m_device.Set(value, number);
        m_session->Update();
    });
}

}  // namespace Studio
