// Gestures and their outcome as text, for tables of state, gesture and expected state.
#pragma once

#include "canvas/CanvasFixture.h"

#include "core/UIObjectPoly.h"

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <string>

// A state or a gesture is a row of words, each with its numbers behind a colon:
//
//   R S T                      a rectangle at (50,50,40,30), (150,60,30,50), (10,11,20,30)
//   pick:ba                    the selection, the front first; tool:KIND mode:N handle:N
//   press:X,Y release: double: move: (button down) hover: (no button), with ,c for Ctrl or ,s for Shift
//   hold lose                  a host gives the canvas the mouse, or takes it
//   grab                       a host begins to move the selection from (60,60)
//   max:POINTS rectmode        of the figure on top
//   destroy:a other clear quiet    the object; another page; no page; no interaction
//   empty delete group ungroup back    commands
//   paint                      what is to be repainted shows from here on
//
// A state comes out as tool (t), drag (d), handle (h), mode if it is not 0 (m), whether the canvas holds the
// mouse, the cursor if it was set, and the objects of the page, called a, b, c as they appear: each with its
// place in the selection and, unless it is where it was put, its rectangle, or the points of a figure with
// its free end.
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
            Do(word);
            NameObjects();
        }
    }

    std::string State() {
        std::ostringstream out;
        out << 't' << Lumo::CUIToolBase::run_drawshape << " d" << Select().m_nDragMode << " h"
            << Lumo::CUIToolBase::run_handle;
        if (m_canvas->m_nMode != Lumo::CM_DRAW)
            out << " m" << m_canvas->m_nMode;
        if (::GetCapture() == m_canvas->m_hWnd)
            out << " held";
        out << CursorName();
        for (Lumo::CUIObject* object : Page())
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
    struct Known {
        char name;
        Gdiplus::RectF place;
    };

    void Reset() {
        m_document->AppendCanvas(m_canvas);
        m_canvas->SetInteractive(1);
        m_canvas->OnModeDraw();
        Lumo::CUIToolBase::run_drawshape = Lumo::DS_SELECT;
        Click(1, 1);  // ends what is left of a press
        Select().m_nDragMode = Lumo::CUISelectTool::kNone;
        ::SetCursor(nullptr);
        m_known.clear();
        m_next = 'a';
        m_painted = false;
    }

    void Do(const std::string& word) {
        using Lumo::CUIToolBase;
        const std::string verb = word.substr(0, word.find(':'));
        const std::string text = word.substr(std::min(word.size(), verb.size() + 1));
        int x = 0, y = 0;
        char comma = 0, key = 0;
        std::istringstream(text) >> x >> comma >> y >> comma >> key;
        const UINT flags = key == 'c' ? MK_CONTROL : key == 's' ? MK_SHIFT : 0;
        const std::map<std::string, std::function<void()>> verbs = {
            {"R", [&] { AddRectangle(50, 50, 40, 30); }},
            {"S", [&] { AddRectangle(150, 60, 30, 50); }},
            {"T", [&] { AddRectangle(10, 11, 20, 30); }},
            {"pick", [&] { Pick(text); }},
            {"tool", [&] { CUIToolBase::run_drawshape = static_cast<Lumo::DrawShape>(x); }},
            {"mode", [&] { m_canvas->m_nMode = x; }},
            {"handle", [&] { CUIToolBase::run_handle = x; }},
            {"press", [&] { Press(x, y, flags); }},
            {"release", [&] { Release(x, y, flags); }},
            {"double", [&] { DoubleClick(x, y, flags); }},
            {"move", [&] { Move(x, y, flags | MK_LBUTTON); }},
            {"hover", [&] { Move(x, y, flags); }},
            {"hold", [&] { m_canvas->SetCapture(); }},
            {"lose", [] { ::ReleaseCapture(); }},
            {"grab", [] { Grab(); }},
            {"max", [&] { Figure().SetMaxPoints(x); }},
            {"rectmode", [&] { Figure().SetRectMode(1); }},
            {"destroy", [&] { Lumo::CUIDocument::DestroyObject(Named(text[0])); }},
            {"other", [&] { m_document->SetCurrentCanvas(OtherPage()); }},
            {"clear", [&] { m_document->ClearCanvas(); }},
            {"empty", [&] { m_document->ClearObject(m_document->GetCanvasObjectList()); }},
            {"delete",
             [&] { m_document->DeleteObject(m_canvas->m_selection.empty() ? nullptr : Page().front()); }},
            {"group", [&] { m_canvas->OnToolsMakeGroup(); }},
            {"ungroup", [&] { m_canvas->OnToolsMakeUngroup(); }},
            {"back", [&] { m_canvas->OnToolsPositionBackward(); }},
            {"quiet", [&] { m_canvas->SetInteractive(0); }},
            {"paint", [&] { m_painted = (TakeUpdateRect(), true); }},
        };
        verbs.at(verb)();
    }

    void Pick(const std::string& names) {
        m_canvas->m_selection.clear();
        for (const char name : names)
            m_canvas->m_selection.push_back(Named(name));
    }

    static void Grab() {
        Select().m_nDragMode = Lumo::CUISelectTool::kMove;
        Lumo::CUIToolBase::run_handle = 8;
        Lumo::CUIToolBase::run_down = Lumo::CUIToolBase::run_last = CPoint(60, 60);
    }

    Lumo::CUICanvas* OtherPage() {
        const Lumo::DrawShape tool = Lumo::CUIToolBase::run_drawshape;
        if (!m_other)
            m_other = AddCanvas();
        Lumo::CUIToolBase::run_drawshape = tool;
        m_document->AppendCanvas(m_other);
        return m_other;
    }

    std::deque<Lumo::CUIObject*> Page() {
        const auto* objects = m_document->GetCanvasObjectList(m_canvas);
        return objects ? *objects : std::deque<Lumo::CUIObject*>();
    }

    Lumo::CUIObjectPoly& Figure() { return dynamic_cast<Lumo::CUIObjectPoly&>(*Objects().back()); }

    Lumo::CUIObject* Named(char name) {
        return std::ranges::find_if(m_known, [&](const auto& k) { return k.second.name == name; })->first;
    }

    void NameObjects() {
        const auto page = Page();
        std::erase_if(m_known, [&](const auto& k) { return !std::ranges::count(page, k.first); });
        for (Lumo::CUIObject* object : page)
            if (m_known.try_emplace(object, Known{m_next, object->GetPosition()}).second)
                ++m_next;
    }

    std::string Text(Lumo::CUIObject& object) {
        std::ostringstream out;
        const Known& known = m_known.at(&object);
        out << known.name;
        const auto place = std::ranges::find(m_canvas->m_selection, &object);
        if (place != m_canvas->m_selection.end())
            out << place - m_canvas->m_selection.begin() + 1;
        const Gdiplus::RectF at = object.GetPosition();
        if (auto* figure = dynamic_cast<Lumo::CUIObjectPoly*>(&object)) {
            out << '{';
            for (const Gdiplus::PointF& point : *figure->NormalizePoints())
                out << point.X << ',' << point.Y << ' ';
            out << '+' << figure->GetPendingOffset().X << ',' << figure->GetPendingOffset().Y << '}';
        } else if (!at.Equals(known.place) || at.IsEmptyArea()) {
            out << '(' << at.X << ',' << at.Y << ',' << at.Width << ',' << at.Height << ')';
        }
        return out.str();
    }

    static std::string CursorName() {
        const std::pair<LPCWSTR, const char*> known[] = {
            {IDC_ARROW, " arrow"}, {IDC_CROSS, " cross"}, {IDC_SIZENWSE, " nwse"}, {IDC_SIZENESW, " nesw"}};
        for (const auto& [cursor, name] : known)
            if (::GetCursor() == ::LoadCursor(nullptr, cursor))
                return name;
        return "";
    }

    std::map<Lumo::CUIObject*, Known> m_known;
    char m_next = 'a';
    bool m_painted = false;
    Lumo::CUICanvas* m_other = nullptr;
};
