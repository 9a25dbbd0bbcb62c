#include "studio/editing/EmbeddedObject.h"

#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/app/Texts.h"
#include "studio/controls/GraphicsStateScope.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <algorithm>
#include <cmath>

namespace Studio {

using Gdiplus::Color;
using Gdiplus::RectF;

namespace {

constexpr DWORD kFrame = 0xFF7A8394;
constexpr DWORD kGround = 0x307A8394;
constexpr DWORD kLetters = 0xFFF2F5FA;
constexpr float kFontSize = 14.0f;
constexpr float kPadding = 4.0f;

}  // namespace

EmbeddedObject::EmbeddedObject() : CUIObjectOle(RectF(0.0f, 0.0f, 0.0f, 0.0f), Lumo::DS_OLE) {}

EmbeddedObject::~EmbeddedObject() = default;

void EmbeddedObject::SetContents(EmbeddedContentsPtr contents) {
    if (m_contents && contents && *m_contents == *contents)
        return;
    Attach(nullptr);
    m_contents = std::move(contents);
}

void EmbeddedObject::Adopt(std::unique_ptr<EmbeddedItem> item, EmbeddedContentsPtr contents) {
    m_contents = std::move(contents);
    Attach(std::move(item));
}

void EmbeddedObject::Attach(std::unique_ptr<EmbeddedItem> item) {
    m_item = std::move(item);
    SetClientItem(m_item.get());
    if (m_item)
        m_item->Watch([this] { TakeSaved(); });
}

bool EmbeddedObject::Open(CWnd& owner, SCODE* status) {
    *status = OLE_E_BLANK;
    if (!m_item && m_contents) {
        auto item = std::make_unique<EmbeddedItem>();
        if (!item->LoadData(m_contents->Data())) {
            *status = item->GetLastStatus();
            return false;
        }
        Attach(std::move(item));
    }
    const bool opened = m_item && m_item->Open(owner);
    if (m_item)
        *status = m_item->GetLastStatus();
    return opened;
}

bool EmbeddedObject::IsOnPage() const {
    const auto* page = dynamic_cast<const StudioCanvas*>(GetCanvas());
    const auto* objects = page ? page->Objects() : nullptr;
    return objects && std::find(objects->begin(), objects->end(), this) != objects->end();
}

// The program may save while the object waits in the history, or in a group: then there is no step of its
// own.
void EmbeddedObject::TakeSaved() {
    EmbeddedContentsPtr saved = m_item->Capture();
    if (m_contents && *saved == *m_contents)
        return;
    if (!IsOnPage()) {
        m_contents = std::move(saved);
        return;
    }
    auto& page = static_cast<StudioCanvas&>(*GetCanvas());
    {
        EditScope edit(page, Text::kStepEmbedded);
        edit.Touch(*this);
        m_contents = std::move(saved);
    }
    page.InvalidateObject(this);
    page.NotifyState();
}

void EmbeddedObject::Draw(Gdiplus::Graphics* g) {
    const RectF bounds = Lumo::Normalised(GetPosition());
    if (!g || bounds.Width < 1.0f || bounds.Height < 1.0f || Lumo::PaintScope::Misses(*g, bounds))
        return;
    Gdiplus::Bitmap* image = m_contents ? m_contents->Image() : nullptr;
    if (!image) {
        DrawPlaceholder(*g, bounds);
        return;
    }
    const GraphicsStateScope state(*g);
    g->SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    g->DrawImage(image, bounds, 0.0f, 0.0f, static_cast<float>(image->GetWidth()),
                 static_cast<float>(image->GetHeight()), Gdiplus::UnitPixel);
}

void EmbeddedObject::DrawPlaceholder(Gdiplus::Graphics& g, const RectF& bounds) const {
    const Gdiplus::SolidBrush ground{Color(kGround)};
    const Gdiplus::Pen frame(Color(kFrame), 1.0f);
    g.FillRectangle(&ground, bounds);
    g.DrawRectangle(&frame, bounds.X, bounds.Y, bounds.Width - 1.0f, bounds.Height - 1.0f);
    const RectF room = Lumo::Inflated(bounds, -kPadding);
    const CString name = m_contents ? m_contents->Name() : CString(Studio::GetText(Text::kEmbeddedObject));
    if (room.Width <= 0.0f || room.Height <= 0.0f || name.IsEmpty())
        return;
    const Gdiplus::FontFamily family(L"Arial");
    const Gdiplus::Font font(&family, kFontSize, Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    Gdiplus::StringFormat layout;
    layout.SetAlignment(Gdiplus::StringAlignmentCenter);
    layout.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    layout.SetTrimming(Gdiplus::StringTrimmingEllipsisCharacter);
    const Gdiplus::SolidBrush letters{Color(kLetters)};
    g.DrawString(name, name.GetLength(), &font, room, &layout, &letters);
}

void EmbeddedObject::Draw(CDC* dc) {
    Gdiplus::Graphics g(dc->m_hDC);
    Draw(&g);
}

void EmbeddedObject::StoreContents(CArchive& ar) const {
    static const EmbeddedContents none(CString(), {}, {});
    (m_contents ? *m_contents : none).Store(ar);
}

void EmbeddedObject::LoadContents(CArchive& ar) {
    SetContents(EmbeddedContents::Load(ar));
}

ObjectPtr MakeEmbedded(std::unique_ptr<EmbeddedItem> item, const Gdiplus::PointF& centre,
                       const Gdiplus::SizeF& room) {
    const Gdiplus::SizeF natural = item->NaturalSize();
    const float scale = std::min({1.0f, room.Width / natural.Width, room.Height / natural.Height});
    const float width = std::max(1.0f, std::round(natural.Width * scale));
    const float height = std::max(1.0f, std::round(natural.Height * scale));
    ObjectPtr object = MakeObject(ObjectClass::kEmbedded);
    object->SetPosition(
        RectF(std::round(centre.X - width * 0.5f), std::round(centre.Y - height * 0.5f), width, height));
    object->SetShapeName(L"Object1");
    EmbeddedContentsPtr contents = item->Capture();
    static_cast<EmbeddedObject&>(*object).Adopt(std::move(item), std::move(contents));
    return object;
}

}  // namespace Studio
