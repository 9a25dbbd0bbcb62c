// A document that runs.
#pragma once

#include "studio/StudioFixture.h"
#include "studio/document/ObjectArchive.h"
#include "studio/document/ObjectExtras.h"
#include "studio/editing/PageEdits.h"
#include "studio/runtime/RunSession.h"
#include "support/Golden.h"

#include <afxadv.h>

#include <memory>
#include <vector>

/// Runs the page on request, and keeps what its behaviours ask of the program.
class RunFixture : public StudioFixture, public Studio::RunHost {
protected:
    void SetUp() override {
        StudioFixture::SetUp();
        m_parent.ShowWindow(SW_SHOWNA);
        Page().ShowWindow(SW_SHOWNA);
    }
    void OnTick() override { m_session->Tick(0.4); }
    void TearDown() override {
        m_session.reset();
        StudioFixture::TearDown();
    }

    /// Shows a place in the corner of the window; the page reaches a window's size beyond it.
    void ScrollTo(CPoint corner) {
        Add(Lumo::DS_RECTANGLE, static_cast<float>(corner.x) + 700, static_cast<float>(corner.y) + 500, 9, 5);
        Page().NotifyState();
        Settle();
        Page().ScrollTo(corner);
    }

    void Run() {
        m_session = std::make_unique<Studio::RunSession>(*m_document, m_device, *this);
        m_session->Update();
        Page().UpdateWindow();
    }

    /// What has been repainted piece by piece is what a whole repaint gives.
    void ExpectNothingStale() {
        m_session->Update();
        const Pixels pieces = PixelsOf(Page());
        m_session->PageShown();
        Page().UpdateWindow();
        CPoint where(0, 0);
        EXPECT_EQ(CountDiffering(PixelsOf(Page()), pieces, &where), 0u)
            << "at " << where.x << ", " << where.y;
    }

    Studio::ObjectExtras& Extras(Lumo::CUIObject* object, Studio::Behaviour behaviour, LPCWSTR value) {
        Studio::ObjectExtras& extras = *Studio::EditExtras(*object);
        extras.TurnOn(behaviour, true);
        extras.Record(behaviour).m_strName = value;
        return extras;
    }

    /// The values that differ, as "in1.mute=1 in2.gain=-3".
    static CString Changes(const Studio::Device& from, const Studio::Device& to) {
        CString changes;
        for (int value = 0; value < to.Count(); ++value)
            if (to.Get(value) != from.Get(value) && !to.Info(value).isReadOnly)
                changes.AppendFormat(L"%s%s=%.5g", changes.IsEmpty() ? L"" : L" ",
                                     to.Info(value).name.GetString(), to.Get(value));
        return changes;
    }

    std::vector<BYTE> Bytes() {
        CSharedFile file;
        {
            CArchive ar(&file, CArchive::store);
            for (Lumo::CUIObject* object : Objects())
                Studio::StoreObject(ar, *object);
        }
        std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }

    void GoToPage(const CString& name) override { m_asked = name; }
    void GoToPage(int number) override { m_asked.Format(L"%d", number); }
    void StepPage(int step) override { m_asked.Format(L"step %d", step); }
    bool Confirm(const CString& question) override {
        m_asked = question;
        return m_answer;
    }
    void EnterNumber(int value, const Gdiplus::RectF&) override { m_asked = m_device.Info(value).name; }

    Studio::Device m_device;
    std::unique_ptr<Studio::RunSession> m_session;
    CString m_asked;
    bool m_answer = true;
};
