#include "studio/document/SymbolLibrary.h"

#include "core/Geometry.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/GroupObject.h"

#include <algorithm>

namespace Studio {

std::vector<CString> FindSymbols(const CString& folder) {
    std::vector<CString> found;
    WIN32_FIND_DATA data;
    HANDLE search = ::FindFirstFile(folder + L"\\*.cbf", &data);
    if (search == INVALID_HANDLE_VALUE)
        return found;
    do {
        if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            found.push_back(folder + L"\\" + data.cFileName);
    } while (::FindNextFile(search, &data));
    ::FindClose(search);
    std::sort(found.begin(), found.end(),
              [](const CString& a, const CString& b) { return a.CompareNoCase(b) < 0; });
    return found;
}

CString DefaultSymbolFolder() {
    WCHAR program[MAX_PATH];
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    const CString path = program;
    return path.Left(path.ReverseFind(L'\\')) + L"\\symbols";
}

CString SymbolName(const CString& path) {
    CString name = path.Mid(path.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

ObjectPtr LoadSymbol(const CString& path) {
    DocumentContents contents = LoadContents(path);
    std::vector<ObjectPtr>& objects = contents.pages.front().objects;
    if (objects.empty())
        throw FileFault{Text::kFaultEmpty};
    ObjectPtr symbol;
    if (objects.size() == 1) {
        symbol = std::move(objects.front());
    } else {
        std::deque<Lumo::CUIObject*> children;
        for (ObjectPtr& object : objects)
            children.push_back(object.release());
        symbol = MakeObject(ObjectClass::kGroup);
        dynamic_cast<GroupObject&>(*symbol).AdoptAll(children);
        symbol->SetShapeName(SymbolName(path));
    }
    const Gdiplus::RectF bounds = Lumo::Normalised(symbol->GetPosition());
    ShiftObject(*symbol, Gdiplus::PointF(-bounds.X, -bounds.Y));
    return symbol;
}

}  // namespace Studio
