#include "studio/app/panels/NumberField.h"

#include "studio/app/panels/FieldPainting.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr int kArrowsWidth = 15;
constexpr int kLetterWidth = 16;
constexpr float kFarStep = 10.0f;
constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT kFirstRepeat = 350;
constexpr UINT kNextRepeat = 60;

}  // namespace

BEGIN_MESSAGE_MAP(NumberField, EditField)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
END_MESSAGE_MAP()

CString NumberField::Format(const PropertyValue& value) const {
    return NumberText(std::get<float>(value));
}

std::optional<PropertyValue> NumberField::Parse(const CString& text, CString& refusal) const {
    const auto number = ParseNumber(text, m_property.range, refusal);
    return number ? std::optional<PropertyValue>(*number) : std::nullopt;
}

CRect NumberField::EditRoom(const CRect& client) const {
    CRect room = EditField::EditRoom(client);
    if (!m_property.inside.IsEmpty())
        room.left += kLetterWidth;
    room.right = client.right - kArrowsWidth;
    return room;
}

void NumberField::Paint(CDC& dc, const CRect& client) {
    const DWORD color = m_state.enabled ? Palette::kQuietText : Palette::kEdge;
    CRect letter = client;
    letter.left += 6;
    PaintText(dc, m_property.inside, letter, color);
    const int x = client.right - kArrowsWidth / 2 - 1;
    const int y = client.CenterPoint().y;
    PaintArrow(dc, CPoint(x, y - 5), ArrowLook::kUp, color);
    PaintArrow(dc, CPoint(x, y + 5), ArrowLook::kDown, color);
}

bool NumberField::OnKey(UINT key) {
    if (key != VK_UP && key != VK_DOWN)
        return EditField::OnKey(key);
    Step(key == VK_UP ? 1 : -1);
    return true;
}

void NumberField::Step(int direction) {
    if (!Commit() || !m_state.value)
        return;
    const float step = ::GetKeyState(VK_SHIFT) < 0 ? kFarStep : 1.0f;
    const float now = std::get<float>(*m_state.value);
    const float next =
        std::clamp(now + step * static_cast<float>(direction), m_property.range.low, m_property.range.high);
    Write(next, static_cast<DWORD>(reinterpret_cast<UINT_PTR>(&m_property)));
}

void NumberField::OnLButtonDown(UINT, CPoint point) {
    if (!m_state.enabled)
        return;
    CRect client;
    GetClientRect(client);
    m_edit.SetFocus();
    if (point.x < client.right - kArrowsWidth)
        return;
    m_stepping = point.y < client.CenterPoint().y ? 1 : -1;
    SetCapture();
    SetTimer(kRepeatTimer, kFirstRepeat, nullptr);
    Step(m_stepping);
}

void NumberField::OnTimer(UINT_PTR) {
    SetTimer(kRepeatTimer, kNextRepeat, nullptr);
    Step(m_stepping);
}

void NumberField::OnLButtonUp(UINT, CPoint) {
    if (GetCapture() == this)
        ReleaseCapture();
}

void NumberField::OnCaptureChanged(CWnd*) {
    KillTimer(kRepeatTimer);
    m_stepping = 0;
}

}  // namespace Studio
