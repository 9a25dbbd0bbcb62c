// Gestures and their outcome as text, for tables of state, gesture and expected state.
#pragma once

#include "canvas/CanvasFixture.h"

#include "core/UIObjectPoly.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string>

// A state or gesture is a row of words, each with its numbers behind a colon:
//   rect:X,Y,W,H  select:ba (the front first)  tool:KIND  mode:N  max:POINTS  rectmode  destroy:a
//   press:X,Y  move:X,Y  hover:X,Y (no button in the flags)  release:X,Y  double:X,Y, each with ,c or ,s for
//   a key lose and hold (a host takes the mouse or gives it)  grab:HANDLE (a host begins a drag)  handle:N
//   other, clear, quiet paint (what is to be repainted shows from then on)
// Objects are called a, b, c in the order in which they appear on the page.
class GestureScript : public CanvasFixture {
protected:
    struct Row {
        const char* state;
        const char* gesture;
        const char* expected;
    };

    void ExpectStates(std::initializer_list<Row> rows) {
        for (const Row& row : rows) {
            Reset();
            Run(row.state);
            Run(row.gesture);
            EXPECT_EQ(State(), row.expected) << row.state << " : " << row.gesture;
        }
    }

    void Run(const std::string& script) {
        std::istringstream words(script);
        for (std::string word; words >> word;) {
            Do(word.substr(0, word.find(':')), word.substr(word.find(':') + 1));
            NameObjects();
        }
    }

    // The tool, the select tool's drag, the handle, whether the canvas holds the mouse, the cursor; then the
    // objects with their place in the selection.
    std::string State() {
        std::ostringstream out;
        out << "tool " << Lumo::CUIToolBase::run_drawshape << " drag " << Select().m_nDragMode << " handle "
            << Lumo::CUIToolBase::run_handle;
        if (m_canvas->m_nMode != Lumo::CM_DRAW)
            out << " mode " << m_canvas->m_nMode;
        if (::GetCapture() == m_canvas->m_hWnd)
            out << " held";
        out << CursorName();
        if (m_document->GetCanvasObjectList(m_canvas))
            for (Lumo::CUIObject* object : Objects())
                out << ' ' << Text(*object);
        if (m_painted) {
            const CRect rect = TakeUpdateRect();
            out << " repaint " << rect.left << ',' << rect.top << ',' << rect.right << ',' << rect.bottom;
        }
        return out.str();
    }

    static Lumo::CUISelectTool& Select() {
        return *static_cast<Lumo::CUISelectTool*>(Lumo::CUIToolBase::FindTool(Lumo::DS_SELECT));
    }

private:
    void Reset() {
        m_document->AppendCanvas(m_canvas);
        m_canvas->SetInteractive(1);
        m_canvas->OnModeDraw();
        Lumo::CUIToolBase::run_drawshape = Lumo::DS_SELECT;
        Click(1, 1);  // ends what is left of a press
        Lumo::CUIToolBase::run_handle = -1;
        Select().m_nDragMode = Lumo::CUISelectTool::kNone;
        ::SetCursor(nullptr);
        m_names.clear();
        m_next = 'a';
        m_painted = false;
    }

    void Do(const std::string& verb, const std::string& text) {
        std::istringstream numbers(text);
        int n[4] = {};
        char key = 0;
        for (int i = 0; i < 4 && numbers >> n[i]; ++i)
            numbers >> key;
        UINT flags = 0;
        if (text.ends_with(",c"))
            flags = MK_CONTROL;
        if (text.ends_with(",s"))
            flags = MK_SHIFT;
        if (verb == "rect")
            AddRectangle(n[0], n[1], n[2], n[3]);
        else if (verb == "select")
            SelectNamed(text);
        else if (verb == "tool")
            Lumo::CUIToolBase::run_drawshape = static_cast<Lumo::DrawShape>(n[0]);
        else if (verb == "mode")
            m_canvas->m_nMode = n[0];
        else if (verb == "max")
            Figure().SetMaxPoints(n[0]);
        else if (verb == "rectmode")
            Figure().SetRectMode(1);
        else if (verb == "destroy")
            Lumo::CUIDocument::DestroyObject(Named(text[0]));
        else if (verb == "press")
            Press(n[0], n[1], flags);
        else if (verb == "move")
            Move(n[0], n[1], flags | MK_LBUTTON);
        else if (verb == "hover")
            Move(n[0], n[1], flags);
        else if (verb == "release")
            Release(n[0], n[1], flags);
        else if (verb == "double")
            DoubleClick(n[0], n[1], flags);
        else if (verb == "lose")
            ::ReleaseCapture();
        else if (verb == "hold")
            m_canvas->SetCapture();
        else if (verb == "grab")
            Grab(n[0]);
        else if (verb == "handle")
            Lumo::CUIToolBase::run_handle = n[0];
        else if (verb == "other")
            m_document->SetCurrentCanvas(OtherPage());
        else if (verb == "clear")
            m_document->ClearCanvas();
        else if (verb == "quiet")
            m_canvas->SetInteractive(0);
        else if (verb == "paint")
            StartPainted();
        else
            ADD_FAILURE() << verb;
    }

    void StartPainted() {
        TakeUpdateRect();
        m_painted = true;
    }

    void Grab(int handle) {
        Select().m_nDragMode = Lumo::CUISelectTool::kMove;
        Lumo::CUIToolBase::run_handle = handle;
        Lumo::CUIToolBase::run_down = Lumo::CUIToolBase::run_last = CPoint(60, 60);
    }

    Lumo::CUICanvas* OtherPage() {
        if (!m_other) {
            const Lumo::DrawShape tool = Lumo::CUIToolBase::run_drawshape;
            m_other = AddCanvas();
            Lumo::CUIToolBase::run_drawshape = tool;
        }
        m_document->AppendCanvas(m_other);
        return m_other;
    }

    void SelectNamed(const std::string& names) {
        m_canvas->m_selection.clear();
        for (const char name : names)
            m_canvas->m_selection.push_back(Named(name));
    }

    Lumo::CUIObject* Named(char name) {
        return std::ranges::find_if(m_names, [&](const auto& entry) { return entry.second == name; })->first;
    }

    Lumo::CUIObjectPoly& Figure() { return dynamic_cast<Lumo::CUIObjectPoly&>(*Objects().back()); }

    void NameObjects() {
        if (!m_document->GetCanvasObjectList(m_canvas))
            return;
        std::erase_if(m_names,
                      [&](const auto& entry) { return !std::ranges::count(Objects(), entry.first); });
        for (Lumo::CUIObject* object : Objects())
            if (m_names.try_emplace(object, m_next).second)
                ++m_next;
    }

    std::string Text(Lumo::CUIObject& object) {
        std::ostringstream out;
        out << m_names[&object];
        const auto& selection = m_canvas->m_selection;
        const auto place = std::ranges::find(selection, &object);
        if (place != selection.end())
            out << place - selection.begin() + 1;
        if (object.GetRemoved())
            out << '-';
        if (auto* figure = dynamic_cast<Lumo::CUIObjectPoly*>(&object)) {
            out << '{';
            for (const Gdiplus::PointF& point : *figure->NormalizePoints())
                out << point.X << ',' << point.Y << ' ';
            out << '+' << figure->GetPendingOffset().X << ',' << figure->GetPendingOffset().Y << '}';
        } else {
            const Gdiplus::RectF at = object.GetPosition();
            out << '(' << at.X << ',' << at.Y << ',' << at.Width << ',' << at.Height << ')';
        }
        return out.str();
    }

    static std::string CursorName() {
        const std::pair<LPCWSTR, const char*> known[] = {
            {IDC_ARROW, " arrow"}, {IDC_CROSS, " cross"}, {IDC_SIZENWSE, " nwse"}, {IDC_SIZENESW, " nesw"},
            {IDC_SIZENS, " ns"},   {IDC_SIZEWE, " we"},   {IDC_SIZEALL, " all"}};
        for (const auto& [cursor, name] : known)
            if (::GetCursor() == ::LoadCursor(nullptr, cursor))
                return name;
        return "";
    }

    std::map<Lumo::CUIObject*, char> m_names;
    char m_next = 'a';
    bool m_painted = false;
    Lumo::CUICanvas* m_other = nullptr;
};
