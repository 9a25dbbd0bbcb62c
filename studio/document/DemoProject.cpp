#include "studio/document/DemoProject.h"

#include "studio/document/Sketch.h"

namespace Studio {

using Gdiplus::RectF;

namespace {

constexpr DWORD kTitle = 0xFFF2F5FA;
constexpr DWORD kQuiet = 0xFF9AA6B8;
constexpr DWORD kPanel = 0xFF15181E;
constexpr DWORD kPanelEdge = 0xFF3A414D;

// Every page begins with its title and what can be done on it.
void DrawHead(Sketch& s, Text title, Text note) {
    s.Label(RectF(24, 14, 420, 36), GetText(title), 24, kTitle, Gdiplus::StringAlignmentNear);
    s.Label(RectF(24, 48, 760, 24), GetText(note), 13, kQuiet, Gdiplus::StringAlignmentNear);
}

CString Name(LPCWSTR format, int number) {
    CString name;
    name.Format(format, number);
    return name;
}

void DrawOverview(Sketch& s) {
    DrawHead(s, Text::kDemoOverview, Text::kDemoOverviewNote);
    s.Rectangle(RectF(24, 84, 760, 560), kPanel, kPanelEdge);
    s.Control(Lumo::DS_CHARTLEVEL, RectF(40, 100, 356, 220), L"in");
    s.Control(Lumo::DS_CHARTLEVEL, RectF(412, 100, 356, 220), L"out");
    s.Control(Lumo::DS_CHARTPEQ, RectF(40, 336, 356, 200), L"out1.peq");
    s.Control(Lumo::DS_STATECROSSOVER, RectF(412, 336, 356, 200), L"out1.xover");
    for (int channel = 1; channel <= 8; ++channel)
        s.Control(Lumo::DS_BUTTONDEVICE, RectF(40.0f + static_cast<float>(channel - 1) * 92.0f, 556, 84, 64),
                  Name(L"out%d", channel));
}

void DrawMatrix(Sketch& s) {
    DrawHead(s, Text::kDemoMatrix, Text::kDemoMatrixNote);
    s.Control(Lumo::DS_CHARTDEVICE, RectF(24, 84, 560, 560), L"xp");
    for (int channel = 1; channel <= 8; ++channel)
        s.Control(Lumo::DS_BUTTONLEVEL,
                  RectF(604.0f + static_cast<float>((channel - 1) % 2) * 92.0f,
                        84.0f + static_cast<float>((channel - 1) / 2) * 142.0f, 84, 132),
                  Name(L"in%d", channel));
}

void DrawEqualiser(Sketch& s) {
    DrawHead(s, Text::kDemoEqualiser, Text::kDemoEqualiserNote);
    s.Control(Lumo::DS_CHARTPEQ, RectF(24, 84, 500, 280), L"out1.peq");
    s.Control(Lumo::DS_STATEPEQ, RectF(536, 84, 248, 280), L"out1.peq");
    for (int band = 1; band <= 6; ++band)
        s.Control(Lumo::DS_BUTTONBAND, RectF(24.0f + static_cast<float>(band - 1) * 84.0f, 376, 78, 60),
                  Name(L"out1.peq.%d", band));
    s.Control(Lumo::DS_STATEGEQ, RectF(24, 448, 500, 196), L"out1.geq");
    s.Control(Lumo::DS_STATECROSSOVER, RectF(536, 376, 248, 268), L"out1.xover");
}

void DrawLevels(Sketch& s) {
    DrawHead(s, Text::kDemoLevels, Text::kDemoLevelsNote);
    s.Control(Lumo::DS_CHARTLEVEL, RectF(24, 84, 760, 250), L"in");
    s.Control(Lumo::DS_CHARTLEVEL, RectF(24, 346, 760, 150), L"out");
    for (int channel = 1; channel <= 8; ++channel)
        s.Control(Lumo::DS_BUTTONLEVEL, RectF(24.0f + static_cast<float>(channel - 1) * 95.5f, 508, 90, 136),
                  Name(L"out%d", channel));
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
