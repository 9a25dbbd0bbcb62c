#include "studio/document/FileReport.h"

#include "core/Geometry.h"
#include "studio/document/ObjectExtras.h"
#include "studio/document/PageContents.h"
#include "studio/editing/GroupObject.h"

namespace Studio {

namespace {

int CountObjects(const DocumentContents& contents) {
    size_t count = 0;
    for (const PageContents& page : contents.pages)
        count += page.objects.size();
    return static_cast<int>(count);
}

void ReportObject(Lumo::CUIObject& object, int indent, CString& text) {
    const CRect bounds = Lumo::RectAtlFromGdi(object.GetPosition());
    CString line;
    line.Format(L"%*s%s \"%s\"  %d, %d  %d x %d", indent, L"",
                Lumo::GetDrawShapeName(object.GetDrawShape()).GetString(), object.GetShapeName().GetString(),
                static_cast<int>(bounds.left), static_cast<int>(bounds.top), static_cast<int>(bounds.Width()),
                static_cast<int>(bounds.Height()));
    const ObjectExtras* extras = FindExtras(object);
    if (extras && !extras->binding.IsEmpty())
        line += L"  = " + extras->binding;
    text += line + L"\n";
    if (auto* group = dynamic_cast<GroupObject*>(&object)) {
        for (Lumo::CUIObject* child : group->GetChildren())
            ReportObject(*child, indent + 2, text);
    }
}

}  // namespace

FileReport ReportFile(const CString& path) {
    DocumentContents contents;
    CString reason, line;
    if (!AttemptFile([&] { contents = LoadContents(path); }, reason)) {
        line.Format(GetText(Text::kCheckFaulty), path.GetString(), reason.GetString());
        return {false, line + L"\n"};
    }
    FileReport report = {true, L""};
    report.text.Format(GetText(Text::kCheckSound), path.GetString(), static_cast<int>(contents.pages.size()),
                       CountObjects(contents));
    report.text += L"\n";
    for (size_t i = 0; i < contents.pages.size(); ++i) {
        const PageContents& page = contents.pages[i];
        line.Format(GetText(Text::kCheckPage), static_cast<int>(i + 1), page.name.GetString(),
                    static_cast<int>(page.objects.size()));
        report.text += line + L"\n";
        for (const ObjectPtr& object : page.objects)
            ReportObject(*object, 2, report.text);
    }
    return report;
}

}  // namespace Studio
