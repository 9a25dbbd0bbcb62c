// The symbols that Studio comes with: signs of audio control screens.
#include "studio/document/Sketch.h"
#include "studio/document/SymbolLibrary.h"

namespace Studio {

using Gdiplus::RectF;

namespace {

constexpr DWORD kBody = 0xFF3A414D;
constexpr DWORD kDark = 0xFF1B1F26;
constexpr DWORD kEdge = 0xFF8E99AA;
constexpr DWORD kBlue = 0xFF5B93F5;
constexpr DWORD kGreen = 0xFF3FC46B;
constexpr DWORD kRed = 0xFFE2574C;
constexpr DWORD kAmber = 0xFFF2B134;
constexpr DWORD kWhite = 0xFFF2F5FA;

void DrawSpeaker(Sketch& s) {
    s.Rectangle(RectF(0, 0, 80, 120), kBody, kEdge, 2);
    s.Ellipse(RectF(26, 10, 28, 28), kDark, kEdge, 2);
    s.Ellipse(RectF(35, 19, 10, 10), kBlue, 0);
    s.Ellipse(RectF(10, 48, 60, 60), kDark, kEdge, 2);
    s.Ellipse(RectF(26, 64, 28, 28), kBlue, 0);
}

void DrawMicrophone(Sketch& s) {
    s.Ellipse(RectF(20, 0, 40, 40), kBody, kEdge, 2);
    s.Line({{24, 12}, {56, 12}}, kEdge, 1);
    s.Line({{20, 20}, {60, 20}}, kEdge, 1);
    s.Line({{24, 28}, {56, 28}}, kEdge, 1);
    s.Rectangle(RectF(28, 40, 24, 56), kDark, kEdge, 2);
    s.Rectangle(RectF(36, 50, 8, 12), kGreen, 0);
    s.Line({{40, 96}, {40, 112}, {56, 120}}, kEdge, 3);
}

void DrawKnob(Sketch& s) {
    s.Ellipse(RectF(0, 0, 72, 72), kDark, kEdge, 2);
    s.Ellipse(RectF(10, 10, 52, 52), kBody, kEdge, 1);
    s.Line({{36, 36}, {52, 18}}, kAmber, 4);
    s.Label(RectF(0, 74, 72, 22), L"Gain", 14, kWhite);
}

void DrawFader(Sketch& s) {
    s.Rectangle(RectF(0, 0, 56, 180), kBody, kEdge, 2);
    s.Rectangle(RectF(25, 12, 6, 156), 0xFF000000, kEdge, 1);
    for (int i = 0; i < 7; ++i) {
        const float y = 18.0f + static_cast<float>(i) * 24.0f;
        s.Line({{8, y}, {20, y}}, kWhite, 2);
        s.Line({{36, y}, {48, y}}, kWhite, 2);
    }
    s.Rectangle(RectF(12, 54, 32, 22), kEdge, kWhite, 2);
    s.Line({{12, 65}, {44, 65}}, kRed, 4);
}

void DrawLamp(Sketch& s) {
    s.Ellipse(RectF(0, 0, 36, 36), kDark, kEdge, 2);
    s.Ellipse(RectF(6, 6, 24, 24), kGreen, 0);
    s.Ellipse(RectF(11, 10, 8, 8), 0xC0FFFFFF, 0);
}

void DrawMuteSign(Sketch& s) {
    s.Line({{4, 26}, {18, 26}, {36, 10}, {36, 58}, {18, 42}, {4, 42}, {4, 26}}, kWhite, 3);
    s.Line({{46, 24}, {66, 44}}, kRed, 4);
    s.Line({{66, 24}, {46, 44}}, kRed, 4);
}

void DrawAmplifier(Sketch& s) {
    s.Line({{0, 40}, {24, 40}}, kWhite, 2);
    s.Line({{24, 8}, {24, 72}, {84, 40}, {24, 8}}, kBlue, 3);
    s.Line({{84, 40}, {108, 40}}, kWhite, 2);
}

void DrawRack(Sketch& s) {
    s.Rectangle(RectF(0, 0, 200, 48), kBody, kEdge, 2);
    s.Rectangle(RectF(6, 6, 10, 36), kDark, kEdge, 1);
    s.Rectangle(RectF(184, 6, 10, 36), kDark, kEdge, 1);
    s.Rectangle(RectF(28, 12, 72, 24), 0xFF0E2A1A, kEdge, 1);
    s.Label(RectF(28, 12, 72, 24), L"16 x 16", 12, kGreen);
    for (int i = 0; i < 3; ++i)
        s.Ellipse(RectF(114.0f + static_cast<float>(i) * 22.0f, 16, 16, 16), i == 2 ? kAmber : kGreen, kDark);
}

constexpr struct {
    LPCWSTR name;
    void (*draw)(Sketch&);
} kSymbols[] = {
    {L"Amplifier", DrawAmplifier}, {L"Fader", DrawFader},           {L"Knob", DrawKnob},
    {L"Lamp", DrawLamp},           {L"Microphone", DrawMicrophone}, {L"Mute", DrawMuteSign},
    {L"Rack unit", DrawRack},      {L"Speaker", DrawSpeaker},
};

}  // namespace

void WriteStandardSymbols(const CString& folder) {
    ::CreateDirectory(folder, nullptr);
    for (const auto& symbol : kSymbols) {
        DocumentContents contents;
        contents.pages.emplace_back();
        contents.pages.front().name = symbol.name;
        Sketch sketch(contents.pages.front());
        symbol.draw(sketch);
        WriteContents(contents, folder + L"\\" + symbol.name + L".cbf");
    }
}

}  // namespace Studio
