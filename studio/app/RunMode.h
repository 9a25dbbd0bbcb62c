// Run mode of the program: device, session, clock, and what the pages ask for.
#pragma once

#include "studio/runtime/NumberEntry.h"
#include "studio/runtime/RunSession.h"
#include "window/Timer.h"

#include <memory>

namespace Studio {

class StudioDocument;

/// Starts and ends the session of a document. The device keeps its settings from one run to the next.
class RunMode : public RunHost {
public:
    /// The device has been on for a while: meters and graphs begin with levels, not with their rise.
    RunMode() { m_device.Settle(); }
    /// Updates per second.
    static constexpr int kRate = 30;

    /// Runs the document, which is not owned and outlives the run; `frame` carries the clock.
    void Start(CWnd& frame, StudioDocument& document);
    void Stop();
    bool IsRunning() const { return m_session != nullptr; }

    /// Another page became the current one.
    void PageShown();
    /// Closes a field that is open over the page; false when there was none.
    bool CancelEntry();
    /// The session, null in edit mode.
    RunSession* Session() { return m_session.get(); }

private:
    void Tick();
    void GoToPage(const CString& name) override;
    void GoToPage(int number) override;
    void StepPage(int step) override;
    bool Confirm(const CString& question) override;
    void EnterNumber(int value, const Gdiplus::RectF& over) override;

    Device m_device;
    std::unique_ptr<RunSession> m_session;
    StudioDocument* m_document = nullptr;
    Lumo::Timer m_timer;
    NumberEntry m_entry;
    LARGE_INTEGER m_last = {};
};

}  // namespace Studio
