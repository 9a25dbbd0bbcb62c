// The audio controls in their states and sizes: what the mouse makes of the device, and what is seen of it.
#include "RunFixture.h"
#include "studio/controls/MatrixControls.h"
#include "studio/runtime/Behaviours.h"

using namespace Studio;

namespace {

class ControlsTest : public RunFixture {
protected:
    void ExpectRows(const std::string& name);

    static constexpr int kLeft = 5, kTop = 3;
};

constexpr auto kPeq = Lumo::DS_CHARTPEQ, kMatrix = Lumo::DS_CHARTDEVICE, kLevels = Lumo::DS_CHARTLEVEL,
               kLevel = Lumo::DS_BUTTONLEVEL, kSwitch = Lumo::DS_BUTTONDEVICE, kBand = Lumo::DS_BUTTONBAND,
               kCrossover = Lumo::DS_STATECROSSOVER, kGeq = Lumo::DS_STATEGEQ, kTable = Lumo::DS_STATEPEQ;

// A control of a size and binding, what is set before, a gesture, and what that changes.
const struct {
    const char* sheet;
    Lumo::DrawShape kind;
    CSize size;
    LPCWSTR binding, set, gesture, changes;
    DWORD style = 0;
} kRows[] = {
    // clang-format off
    {"charts", kPeq, {300, 180}, L"", L"out1.peq.2.on=0", L"m169,97", L""},
    {"charts", kPeq, {300, 180}, L"out1.peq", L"", L"m169,96", L""},
    {"charts", kPeq, {260, 150}, L"out1.peq", L"out1.peq.1.type=4;out1.peq.3.type=5;out1.peq.5.type=2", L"m160,75", L""},
    {"charts", kPeq, {300, 180}, L"out1.peq", L"", L"d169,85 m199,65 m200,66 u200,66", L"out1.peq.3.freq=1893.3 out1.peq.3.gain=7.1"},
    {"charts", kPeq, {300, 180}, L"out1.peq", L"out1.peq.3.type=3", L"d169,92 m179,60 u179,60", L"out1.peq.3.freq=1064.7"},
    {"charts", kPeq, {300, 180}, L"out2.peq", L"out2.peq.on=0", L"D86,104 u86,104 w126,84 l", L"out2.peq.1.on=0 out2.peq.2.q=1.61"},
    {"charts", kPeq, {300, 180}, L"out1.peq", L"", L"d20,20 m169,85 u169,85 m20,20 W126,105 W126,105", L"out1.peq.2.q=1.0586"},
    {"charts", kPeq, {300, 180}, L"out1.peq", L"", L"d169,85 m180,85 x m250,60", L"out1.peq.3.freq=1094.3 out1.peq.3.gain=1.9"},
    {"charts", kPeq, {150, 100}, L"out3.peq", L"", L"", L""},
    {"charts", kPeq, {149, 100}, L"out3.peq", L"", L"d79,43 m-40,-90 u-40,-90", L"out3.peq.3.freq=20 out3.peq.3.gain=15"},
    {"charts", kPeq, {150, 99}, L"nonsense", L"", L"d70,40 m90,30 u90,30", L""},
    {"charts", kCrossover, {248, 180}, L"", L"", L"m20,80", L""},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"out1.xover.slope=36", L"m70,60 D70,60 u70,60", L"out1.xover.slope=48"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"out1.xover.slope=48;out1.xover.type=0", L"D130,60 u130,60", L"out1.xover.slope=12"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"out1.xover.type=1", L"m215,60 w215,60", L"out1.xover.type=2"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"out1.xover.on=0", L"W70,60 W70,60", L"out1.xover.type=0"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"", L"d100,60 m120,70 u120,70", L"out1.xover.low=-2"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"", L"d105,60 m240,70", L"out1.xover.lowfreq=2000"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"", L"d181,30 m60,70 u60,70 l", L"out1.xover.highfreq=500"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"", L"d140,60 m141,71 m150,80", L"out1.xover.mid=-7.5"},
    {"charts", kCrossover, {248, 180}, L"out1.xover", L"", L"d60,60 m60,55 m61,50 u61,50", L"out1.xover.low=5"},
    {"charts", kCrossover, {120, 80}, L"out2.xover", L"", L"d100,30 m100,20 x m40,40", L"out2.xover.high=5"},
    {"states", kGeq, {300, 160}, L"", L"", L"m100,70", L""},
    {"states", kGeq, {400, 160}, L"out2.geq", L"out2.geq.on=0", L"m33,70", L""},
    {"states", kGeq, {300, 160}, L"out1.geq", L"", L"d60,50 m120,110 m121,110 u121,110", L"out1.geq.4=7 out1.geq.5=5 out1.geq.6=3 out1.geq.7=1.5 out1.geq.8=-0.5 out1.geq.9=-2.5 out1.geq.10=-4 out1.geq.11=-6"},
    {"states", kGeq, {300, 160}, L"out1.geq", L"", L"D200,60 u200,60 l", L"out1.geq.21=0"},
    {"states", kGeq, {300, 160}, L"out1.geq", L"", L"d34,142 m10,30 u10,30", L"out1.geq.1=11"},
    {"states", kGeq, {300, 160}, L"out1.geq", L"", L"d40,10 u40,10 d285,60 m400,200 u400,200", L"out1.geq.31=-12"},
    {"states", kGeq, {590, 130}, L"out4.geq", L"", L"d100,60 u100,60 m120,60", L"out4.geq.4=2"},
    {"states", kGeq, {120, 70}, L"out3.geq", L"", L"m60,40", L""},
    {"states", kTable, {260, 190}, L"", L"out1.peq.3.on=0", L"m60,60", L""},
    {"states", kTable, {260, 190}, L"out1.peq", L"out1.peq.on=0;out1.peq.1.type=5;out1.peq.4.type=4", L"d60,90 u60,90", L"out1.peq.3.on=0"},
    {"states", kTable, {260, 190}, L"out1.peq", L"out1.peq.2.type=3", L"d60,30 u60,30", L"out1.peq.on=0"},
    {"states", kTable, {260, 190}, L"out1.peq", L"", L"w20,60 w50,80 w110,100 W160,120 w230,150 w60,30", L"out1.peq.1.type=2 out1.peq.2.type=1 out1.peq.3.freq=848 out1.peq.4.gain=-5.5 out1.peq.5.q=1.61"},
    {"states", kTable, {260, 190}, L"out5.peq", L"", L"m60,182 l", L""},
    {"states", kTable, {190, 120}, L"out2.peq", L"", L"m149,44", L""},
    {"states", kTable, {189, 120}, L"out2.peq", L"out2.peq.1.on=0", L"d32,30 u32,30 w60,30", L"out2.peq.2.on=0"},
    {"states", kTable, {90, 20}, L"out2.peq", L"", L"d89,3 u89,3", L"out2.peq.6.on=0"},
    {"states", kTable, {60, 14}, L"out2.peq", L"out2.peq.on=0", L"", L""},
    {"buttons", kBand, {78, 60}, L"", L"", L"", L""},
    {"buttons", kBand, {110, 60}, L"out1.peq.6", L"", L"m30,30", L""},
    {"buttons", kBand, {110, 32}, L"out1.peq.2", L"", L"d30,30 u30,30", L"out1.peq.2.on=0"},
    {"buttons", kBand, {110, 31}, L"out1.peq.2", L"", L"d30,30", L""},
    {"buttons", kBand, {110, 28}, L"out1.peq.4", L"", L"d30,20 m30,40", L""},
    {"buttons", kBand, {54, 24}, L"out1.peq.5", L"out1.peq.5.on=0", L"d30,20 u30,40", L""},
    {"buttons", kBand, {60, 40}, L"out1.peq.3", L"", L"d30,20 m300,20 m59,39 u59,39", L"out1.peq.3.on=0"},
    {"buttons", kBand, {60, 40}, L"out1.geq.3", L"", L"d30,20 u30,20", L""},
    {"buttons", kLevel, {88, 66}, L"", L"", L"", L""},
    {"buttons", kLevel, {88, 66}, L"in6", L"", L"m30,30", L""},
    {"buttons", kLevel, {88, 66}, L"in2", L"", L"d30,30 u30,30", L"in2.mute=1"},
    {"buttons", kLevel, {120, 40}, L"out9", L"", L"d30,30 u30,30 l", L"out9.mute=0"},
    {"buttons", kLevel, {120, 40}, L"out3", L"in3.gain=-20", L"d30,30 m30,22 m30,13 u30,13", L"out3.gain=-3"},
    {"buttons", kLevel, {90, 51}, L"out4", L"", L"d30,30 m34,30 m30,45 m30,300 u30,200", L"out4.gain=-60"},
    {"buttons", kLevel, {90, 50}, L"in4", L"in4.mute=1", L"d10,30 u90,30 t", L""},
    {"buttons", kLevel, {89, 30}, L"in5", L"", L"d10,20 t x u10,20", L""},
    {"buttons", kLevel, {44, 24}, L"in1", L"in1.gain=9", L"t", L""},
    {"buttons", kLevels, {210, 130}, L"", L"", L"", L""},
    {"buttons", kLevels, {400, 130}, L"out", L"", L"t", L""},
    {"buttons", kLevels, {110, 90}, L"out", L"out1.gain=12;master.gain=12", L"t t", L""},
    {"buttons", kLevels, {60, 130}, L"in3", L"in3.gain=3", L"t t t t", L""},
    {"buttons", kLevels, {59, 80}, L"in", L"in1.mute=1", L"t t t t", L""},
    {"buttons", kLevels, {22, 80}, L"out2", L"", L"t", L""},
    {"buttons", kSwitch, {80, 40}, L"", L"", L"", L""},
    {"buttons", kSwitch, {80, 40}, L"in1.mute", L"in1.mute=1", L"m20,20", L""},
    {"buttons", kSwitch, {80, 34}, L"out9", L"", L"d20,20 u20,20 l", L"out9.mute=0"},
    {"buttons", kSwitch, {80, 33}, L"xp.1.2.on", L"", L"d20,20 u20,20", L"xp.1.2.on=1"},
    {"buttons", kSwitch, {80, 58}, L"xp.1.2.on", L"", L"d20,20", L""},
    {"buttons", kSwitch, {80, 40}, L"xp.1.1.on", L"", L"d20,20", L"", DeviceButton::kMomentary},
    {"buttons", kSwitch, {80, 40}, L"xp.1.2.on", L"", L"d20,20 m200,200 u200,200", L"", DeviceButton::kMomentary},
    {"buttons", kSwitch, {80, 40}, L"xp.1.3.on", L"", L"d20,20", L"xp.1.3.on=1", DeviceButton::kMomentary},
    {"buttons", kSwitch, {80, 40}, L"xp.1.3.on", L"", L"d20,20 x", L"", DeviceButton::kMomentary},
    {"buttons", kSwitch, {80, 40}, L"xp.1.3.on", L"", L"d20,20 u20,20 d20,20 u20,20", L"xp.1.3.on=1", DeviceButton::kRadio},
    {"buttons", kSwitch, {80, 40}, L"in1.gain", L"", L"d20,20 u20,20", L""},
    {"buttons", kLevels, {110, 90}, L"out", L"master.mute=1", L"t t", L""},
    {"matrix", kMatrix, {290, 300}, L"", L"xp.2.3.on=1;xp.2.3.gain=6;xp.3.3.gain=-40;xp.4.4.gain=-30", L"", L""},
    {"matrix", kMatrix, {290, 260}, L"xp", L"", L"m120,120", L""},
    {"matrix", kMatrix, {290, 300}, L"xp", L"", L"d40,53 m41,54 m42,56 u42,56", L"xp.1.1.on=0"},
    {"matrix", kMatrix, {290, 300}, L"xp", L"", L"d70,53 m70,57", L"xp.1.3.gain=-1"},
    {"matrix", kMatrix, {290, 300}, L"xp", L"", L"d277,287 u277,287 d277,287 m277,285 m277,240 u277,240 d278,287 u278,287", L"xp.16.16.gain=12 xp.16.16.on=0"},
    {"matrix", kMatrix, {290, 300}, L"xp", L"", L"d20,53 m40,53 m40,90 u40,90", L""},
    {"matrix", kMatrix, {160, 160}, L"xp", L"", L"d100,100 x m200,200", L""},
    {"matrix", kMatrix, {270, 170}, L"xp", L"", L"d100,100 u120,100 l", L""},
    {"matrix", kMatrix, {159, 160}, L"xp", L"", L"m60,60", L""},
    {"matrix", kMatrix, {100, 80}, L"xp", L"", L"m60,60", L""},
    {"matrix", kMatrix, {60, 40}, L"xp", L"", L"d19,10 u19,10 d20,10 u20,10 d35,25 u35,25 d36,25 u36,25", L"xp.1.1.on=0 xp.16.16.on=0"},
    // clang-format on
};

// Each row in its state, repainted by parts as a whole repaint does it, and edited again afterwards.
void ControlsTest::ExpectRows(const std::string& name) {
    Sheet sheet(940);
    m_parent.MoveWindow(0, 0, 620, 400);
    Page().MoveWindow(0, 0, 620, 310);
    Device settled(3);
    settled.Settle();
    for (const auto& row : kRows) {
        if (row.sheet != name)
            continue;
        SCOPED_TRACE(testing::Message() << "row " << &row - kRows);
        auto* object =
            Add(row.kind, kLeft, kTop, static_cast<float>(row.size.cx), static_cast<float>(row.size.cy));
        EditExtras(*object)->binding = row.binding;
        if (auto* button = dynamic_cast<DeviceButton*>(object))
            button->SetButtonStyle(row.style);
        Page().Select(nullptr, 0);
        Page().UpdateWindow();
        const Pixels edited = PixelsOf(Page());
        m_device = settled;
        Run();
        RunCommand(CPrefButton(), row.set, m_device);
        ExpectNothingStale();
        const Device before = m_device;
        Play(row.gesture, {kLeft, kTop});
        EXPECT_STREQ(Changes(before, m_device), row.changes);
        const CRect place(CPoint(kLeft - 2, kTop - 2), row.size + CSize(4, 4));
        sheet.Add(PixelsOf(Page(), place));
        // Every other run ends in the middle of its gesture.
        if ((&row - kRows) % 2) {
            Play(L"x l");
            ExpectNothingStale();
        }
        m_session.reset();
        EXPECT_NE(::GetCapture(), Page().m_hWnd);
        Page().UpdateWindow();
        EXPECT_EQ(CountDiffering(PixelsOf(Page()), edited), 0u) << "edited again";
        Page().SelectOnly({object});
        DeleteSelection(Page());
    }
    ExpectGolden(sheet.All(), "studio", name);
}

}  // namespace

TEST_F(ControlsTest, Charts) {
    ExpectRows("charts");
}
TEST_F(ControlsTest, States) {
    ExpectRows("states");
}
TEST_F(ControlsTest, Buttons) {
    ExpectRows("buttons");
}
TEST_F(ControlsTest, Matrix) {
    ExpectRows("matrix");
}
