#include "studio/document/DemoProject.h"

#include "studio/device/Names.h"
#include "studio/document/ObjectExtras.h"
#include "studio/document/Sketch.h"

namespace Studio {

using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

constexpr DWORD kTitle = 0xFFF2F5FA;
constexpr DWORD kQuiet = 0xFF9AA6B8;
constexpr DWORD kPanel = 0xFF15181E;
constexpr DWORD kPanelEdge = 0xFF3A414D;
constexpr DWORD kButton = 0xFF243A63;
constexpr DWORD kButtonEdge = 0xFF5B93F5;
constexpr DWORD kRed = 0xFFE2574C;

// Every page begins with its title and what can be done on it.
void DrawHead(Sketch& s, Text title, Text note) {
    // A caption begins a little inside its box, the larger its type the more.
    s.Label(RectF(17, 14, 420, 36), GetText(title), 24, kTitle, Gdiplus::StringAlignmentNear);
    s.Label(RectF(19, 48, 525, 24), GetText(note), 13, kQuiet, Gdiplus::StringAlignmentNear);
}

ObjectExtras& Bind(CUIObject& object, LPCWSTR value, Behaviour behaviour) {
    ObjectExtras& extras = *EditExtras(object);
    extras.binding = value;
    extras.TurnOn(behaviour, true);
    return extras;
}

// A button that leads to the page of its caption.
void DrawPageButton(Sketch& s, const RectF& rect, Text page) {
    // The ground is drawn over a shape's own caption, so the text is an object of its own.
    CUIObject& face = s.Rectangle(rect, kButton, kButtonEdge);
    CUIObject& text = s.Label(rect, GetText(page), 14, kTitle);
    for (CUIObject* part : {&face, &text})
        Bind(*part, L"", Behaviour::kPage).prefs.m_page.m_strPageName = GetText(page);
}

void AddTrendLine(ObjectExtras& extras, LPCWSTR value, DWORD color) {
    auto* line = new CPrefTrendLine;
    line->m_strName = value;
    line->m_nWidth = 2;
    line->m_nColor = static_cast<int>(color);
    extras.prefs.m_trend.m_lines.push_back(line);
}

void DrawTrend(Sketch& s, const RectF& rect) {
    CUIObject& graph = s.Rectangle(rect, 0xFF0B0D11, kPanelEdge);
    ObjectExtras& extras = Bind(graph, L"in1.level", Behaviour::kTrend);
    CPrefTrend& trend = extras.prefs.m_trend;
    trend.m_nTimeSpan = 20;
    trend.m_nTimeDivisions = 4;
    trend.m_nLowValue = -60;
    trend.m_nHighValue = 0;
    trend.m_nValueDivisions = 3;
    trend.m_dwBackColor = 0xFF0B0D11;
    trend.m_dwGridColor = 0xFF7A8698;
    AddTrendLine(extras, L"in1.level", 0xFF3FC46B);
    AddTrendLine(extras, L"out1.level", 0xFF5B93F5);
}

// Slider and value of the master, and a lamp that shows when the second input comes near its limit.
void DrawMaster(Sketch& s) {
    s.Label(RectF(412, 552, 200, 22), GetText(Text::kDemoMaster), 13, kQuiet, Gdiplus::StringAlignmentNear);
    CUIObject& slider = s.Rectangle(RectF(412, 580, 270, 28), 0xFF0B0D11, kPanelEdge);
    CPrefSlider& range = Bind(slider, L"master.gain", Behaviour::kSlider).prefs.m_slider;
    range.m_nDirection = 1;
    range.m_nLowValue = -60;
    range.m_nHighValue = 12;
    Bind(s.Label(RectF(688, 580, 84, 28), L"0.0 dB", 14, kTitle), L"master.gain", Behaviour::kText);

    s.Ellipse(RectF(416, 622, 20, 20), 0xFF3A1512, kPanelEdge);
    CPrefHide& hide =
        Bind(s.Ellipse(RectF(416, 622, 20, 20), kRed, 0xFFFFB0A8), L"in2.level", Behaviour::kHide)
            .prefs.m_hide;
    hide.m_nMode = 1;
    hide.m_nCompare = static_cast<int>(Comparison::kAtLeast);
    hide.m_nLowValue = -9;
    s.Label(RectF(440, 620, 240, 24), GetText(Text::kDemoPeak), 13, kQuiet, Gdiplus::StringAlignmentNear);
}

void DrawOverview(Sketch& s) {
    DrawHead(s, Text::kDemoOverview, Text::kDemoOverviewNote);
    DrawPageButton(s, RectF(438, 24, 110, 34), Text::kDemoMatrix);
    DrawPageButton(s, RectF(556, 24, 110, 34), Text::kDemoEqualiser);
    DrawPageButton(s, RectF(674, 24, 110, 34), Text::kDemoLevels);
    s.Rectangle(RectF(24, 84, 760, 580), kPanel, kPanelEdge);
    s.Control(Lumo::DS_CHARTLEVEL, RectF(40, 98, 356, 190), L"in");
    s.Control(Lumo::DS_CHARTLEVEL, RectF(412, 98, 356, 190), L"out");
    s.Control(Lumo::DS_CHARTPEQ, RectF(40, 300, 356, 168), L"out1.peq");
    s.Control(Lumo::DS_STATECROSSOVER, RectF(412, 300, 356, 168), L"out1.xover");
    for (int channel = 1; channel <= 8; ++channel)
        s.Control(Lumo::DS_BUTTONDEVICE, RectF(40.0f + static_cast<float>(channel - 1) * 92.0f, 480, 84, 58),
                  Numbered(L"out%d", channel))
            .SetText(Numbered(L"OUT %d", channel));
    DrawTrend(s, RectF(40, 550, 356, 100));
    DrawMaster(s);
}

void DrawBack(Sketch& s) {
    DrawPageButton(s, RectF(674, 24, 110, 34), Text::kDemoOverview);
}

// Sixteen channels in columns or rows.
void DrawChannels(Sketch& s, LPCWSTR name, int columns, const RectF& first, float stepX, float stepY) {
    for (int i = 0; i < 16; ++i) {
        RectF rect = first;
        const int row = i / columns;
        rect.X += static_cast<float>(i % columns) * stepX;
        rect.Y += static_cast<float>(row) * stepY;
        s.Control(Lumo::DS_BUTTONLEVEL, rect, Numbered(name, i + 1));
    }
}

void DrawMatrix(Sketch& s) {
    DrawHead(s, Text::kDemoMatrix, Text::kDemoMatrixNote);
    DrawBack(s);
    s.Control(Lumo::DS_CHARTDEVICE, RectF(24, 84, 564, 580), L"xp");
    DrawChannels(s, L"in%d", 2, RectF(602, 84, 88, 66), 94.0f, 73.4f);
}

void DrawEqualiser(Sketch& s) {
    DrawHead(s, Text::kDemoEqualiser, Text::kDemoEqualiserNote);
    DrawBack(s);
    s.Control(Lumo::DS_CHARTPEQ, RectF(24, 84, 500, 280), L"out1.peq");
    s.Control(Lumo::DS_STATEPEQ, RectF(536, 84, 248, 280), L"out1.peq");
    for (int band = 1; band <= 6; ++band)
        s.Control(Lumo::DS_BUTTONBAND, RectF(24.0f + static_cast<float>(band - 1) * 84.4f, 376, 78, 60),
                  Numbered(L"out1.peq.%d", band));
    s.Control(Lumo::DS_STATEGEQ, RectF(24, 448, 500, 216), L"out1.geq");
    s.Control(Lumo::DS_STATECROSSOVER, RectF(536, 376, 248, 288), L"out1.xover");
}

void DrawLevels(Sketch& s) {
    DrawHead(s, Text::kDemoLevels, Text::kDemoLevelsNote);
    DrawBack(s);
    s.Control(Lumo::DS_CHARTLEVEL, RectF(24, 84, 760, 220), L"in");
    s.Control(Lumo::DS_CHARTLEVEL, RectF(24, 316, 760, 200), L"out");
    DrawChannels(s, L"out%d", 8, RectF(24, 528, 91, 64), 95.6f, 72.0f);
}

constexpr struct {
    Text name;
    void (*draw)(Sketch&);
} kPages[] = {
    {Text::kDemoOverview, DrawOverview},
    {Text::kDemoMatrix, DrawMatrix},
    {Text::kDemoEqualiser, DrawEqualiser},
    {Text::kDemoLevels, DrawLevels},
};

}  // namespace

DocumentContents MakeDemoProject() {
    DocumentContents demo;
    for (const auto& row : kPages) {
        PageContents& page = demo.pages.emplace_back();
        page.name = GetText(row.name);
        Sketch sketch(page);
        row.draw(sketch);
    }
    return demo;
}

}  // namespace Studio
