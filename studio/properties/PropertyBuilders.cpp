#include "studio/properties/PropertyBuilders.h"

namespace Studio {

Property Inside(Property property, LPCWSTR text) {
    property.inside = text;
    return property;
}

Property Inside(Property property, Text text) {
    return Inside(std::move(property), GetText(text));
}

Property Joined(Property property) {
    property.joins = true;
    return property;
}

Property For(bool (*applies)(const Lumo::CUIObject&), Property property) {
    property.applies = applies;
    return property;
}

std::function<std::vector<Choice>()> Choices(std::initializer_list<std::pair<int, Text>> rows) {
    return [rows = std::vector(rows)] {
        std::vector<Choice> choices;
        choices.reserve(rows.size());
        for (const auto& [value, text] : rows)
            choices.push_back({value, GetText(text)});
        return choices;
    };
}

std::function<std::vector<Choice>()> Choices(std::initializer_list<Text> texts) {
    return [texts = std::vector(texts)] {
        std::vector<Choice> choices;
        choices.reserve(texts.size());
        for (Text text : texts)
            choices.push_back({static_cast<int>(choices.size()), GetText(text)});
        return choices;
    };
}

CString CheckPicture(StudioCanvas&, const PropertyValue& value) {
    const auto& path = std::get<CString>(value);
    if (path.IsEmpty())
        return CString();
    const DWORD attributes = ::GetFileAttributes(path);
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY))
        return GetText(Text::kRefuseNoFile);
    const Gdiplus::Image image(path);
    return image.GetLastStatus() == Gdiplus::Ok ? CString() : CString(GetText(Text::kRefuseNoPicture));
}

}  // namespace Studio
