#include "studio/app/panels/PropertyPanel.h"

#include "studio/app/Painting.h"
#include "studio/editing/StudioCanvas.h"
#include "studio/properties/PropertyTable.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr UINT_PTR kRefreshTimer = 1;
constexpr UINT kRefreshDelay = 25;
constexpr UINT_PTR kNoteTimer = 2;
constexpr UINT kNoteTime = 5000;
// Binding and chooser stand before the rows of the behaviour that is chosen.
constexpr size_t kFixedBehaviourRows = 2;

// The behaviours in the list, with a mark at those that are in use.
std::vector<Choice> BehaviourChoices(DWORD on) {
    std::vector<Choice> choices;
    for (int i = 0; i < kBehaviourCount; ++i) {
        const CString mark = on >> i & 1 ? L"\x25CF  " : L"\x25CB  ";
        choices.push_back({i, mark + GetText(BehaviourName(static_cast<Behaviour>(i)))});
    }
    return choices;
}

DWORD BehavioursOf(const Lumo::CUIObjectDeque& objects) {
    DWORD on = 0;
    for (const Lumo::CUIObject* object : objects) {
        const ObjectExtras* extras = FindExtras(*object);
        if (!extras || !extras->HasBehaviours())
            continue;
        for (int i = 0; i < kBehaviourCount; ++i)
            on |= extras->IsOn(static_cast<Behaviour>(i)) ? 1u << i : 0u;
    }
    return on;
}

}  // namespace

BEGIN_MESSAGE_MAP(PropertyPanel, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_VSCROLL()
    ON_WM_LBUTTONDOWN()
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

PropertyPanel::PropertyPanel(PropertyPanelOwner& owner)
    : m_owner(owner),
      m_chooserProperty{.label = Text::kPropBehaviour,
                        .step = Text::kStepBehaviour,
                        .kind = FieldKind::kChoice,
                        .choices = [] { return BehaviourChoices(0); }} {}

bool PropertyPanel::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return CreateEx(0, windowClass, L"Properties",
                    WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_VSCROLL,
                    CRect(0, 0, kWidth, 0), &parent, 0) &&
           m_note.Create(*this) && BuildSections();
}

bool PropertyPanel::BuildSections() {
    const auto begin = [this](Text title) {
        m_sections.push_back(std::make_unique<Section>());
        m_sections.back()->title = title;
        return m_sections.back()->header.Create(*this, title, static_cast<UINT>(m_sections.size()));
    };
    for (const PropertySection& source : AppearanceSections()) {
        if (!begin(source.title))
            return false;
        for (const Property& property : source.properties) {
            if (!AddField(*m_sections.back(), property))
                return false;
        }
    }
    if (!begin(Text::kSectionBehaviour) || !AddField(BehaviourSection(), BindingProperty()))
        return false;
    m_chooser = static_cast<ChoiceField*>(AddField(BehaviourSection(), m_chooserProperty));
    if (!m_chooser || !BuildBehaviourRows())
        return false;
    LayOut();
    Refresh();
    return true;
}

PropertyField* PropertyPanel::AddField(Section& section, const Property& property) {
    if (!property.joins) {
        section.rows.emplace_back();
        section.rows.back().label = property.label;
    }
    auto field = MakeField(*this, property);
    if (!field->Create(*this))
        return nullptr;
    section.rows.back().fields.push_back(std::move(field));
    return section.rows.back().fields.back().get();
}

bool PropertyPanel::BuildBehaviourRows() {
    if (m_refused)
        m_refused->EndRefusal();
    auto& rows = BehaviourSection().rows;
    rows.erase(rows.begin() + kFixedBehaviourRows, rows.end());
    bool made = AddField(BehaviourSection(), BehaviourSwitch(m_behaviour)) != nullptr;
    for (const Property& property : BehaviourFields(m_behaviour))
        made = made && AddField(BehaviourSection(), property);
    return made;
}

void PropertyPanel::ChooseBehaviour(int behaviour) {
    m_behaviour = static_cast<Behaviour>(behaviour);
    BuildBehaviourRows();
    LayOut();
    Refresh();
}

template <class Visit>
void PropertyPanel::ForEachRow(Visit visit) {
    for (auto& section : m_sections) {
        for (Row& row : section->rows)
            visit(*section, row);
    }
}

void PropertyPanel::RefreshSoon() {
    if (m_refreshing || !m_hWnd || !IsWindowVisible())
        return;
    // A timer's message comes when nothing else is waiting: a drag is never held up.
    m_refreshing = SetTimer(kRefreshTimer, kRefreshDelay, nullptr) != 0;
}

void PropertyPanel::OnTimer(UINT_PTR timer) {
    if (timer == kRefreshTimer)
        Refresh();
    else
        FadeNote();
}

// The note stays as long as the refused text is there to be corrected.
void PropertyPanel::FadeNote() {
    if (m_refused && m_refused == FocusedField())
        return;
    KillTimer(kNoteTimer);
    if (m_refused)
        m_refused->EndRefusal();
}

void PropertyPanel::Refresh() {
    KillTimer(kRefreshTimer);
    m_refreshing = false;
    const bool hadFocus = FocusedField() != nullptr;
    StudioCanvas* page = m_owner.PropertyPage();
    static const Lumo::CUIObjectDeque none;
    const Lumo::CUIObjectDeque& objects = page ? page->m_selection : none;
    FollowSelection(objects);
    ForEachRow([&](Section& section, Row& row) {
        for (auto& field : row.fields) {
            if (section.header.IsOpen() && field.get() != m_chooser)
                field->Show(ReadProperty(field->GetProperty(), objects));
        }
    });
    RefreshChooser();
    RefreshTitle();
    // A field that cannot be used any more has lost the focus to nobody.
    if (hadFocus && !FocusedField())
        LeaveToPage();
}

// Another selection shows the first behaviour that it has; one without any, what was shown before.
void PropertyPanel::FollowSelection(const Lumo::CUIObjectDeque& objects) {
    if (std::equal(objects.begin(), objects.end(), m_chosenFor.begin(), m_chosenFor.end()))
        return;
    m_chosenFor.assign(objects.begin(), objects.end());
    const DWORD on = BehavioursOf(objects);
    if (!on || on >> static_cast<int>(m_behaviour) & 1)
        return;
    m_behaviour = static_cast<Behaviour>(std::countr_zero(on));
    BuildBehaviourRows();
    LayOut();
}

void PropertyPanel::RefreshChooser() {
    StudioCanvas* page = m_owner.PropertyPage();
    const DWORD on = page ? BehavioursOf(page->m_selection) : 0;
    if (on != m_behavioursOn) {
        m_behavioursOn = on;
        m_chooser->Replace(BehaviourChoices(on));
    }
    const bool any = page && !page->m_selection.empty();
    m_chooser->Show({any, PropertyValue(static_cast<int>(m_behaviour))});
}

void PropertyPanel::RefreshTitle() {
    StudioCanvas* page = m_owner.PropertyPage();
    CString title;
    if (!page || page->m_selection.empty())
        title = GetText(Text::kPanelNothing);
    else if (page->m_selection.size() > 1)
        title.Format(GetText(Text::kPanelMany), static_cast<int>(page->m_selection.size()));
    else
        title = page->m_selection.front()->GetShapeName();
    if (title == m_title)
        return;
    m_title = title;
    Invalidate(FALSE);
}

CString PropertyPanel::WriteValue(const Property& property, const PropertyValue& value, DWORD mergeKey) {
    if (&property == &m_chooserProperty) {
        ChooseBehaviour(std::get<int>(value));
        return CString();
    }
    StudioCanvas* page = m_owner.PropertyPage();
    if (!page)
        return CString();
    CString refusal = WriteProperty(property, *page, value, mergeKey);
    if (refusal.IsEmpty())
        Refresh();
    return refusal;
}

void PropertyPanel::ShowRefusal(PropertyField& field, const CString& reason) {
    if (reason.IsEmpty()) {
        if (m_refused == &field) {
            m_refused = nullptr;
            m_note.Hide();
            m_owner.OnPropertyRefused(reason);
        }
        return;
    }
    if (m_refused && m_refused != &field)
        m_refused->EndRefusal();
    m_refused = &field;
    SetTimer(kNoteTimer, kNoteTime, nullptr);
    CRect rect;
    field.GetWindowRect(rect);
    ScreenToClient(rect);
    m_note.Show(rect, reason);
    m_owner.OnPropertyRefused(reason);
}

void PropertyPanel::CommitEditing() {
    PropertyField* field = FocusedField();
    if (field && !field->Commit())
        field->Revert();
}

}  // namespace Studio
