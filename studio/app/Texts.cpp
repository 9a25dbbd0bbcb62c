#include "studio/app/Texts.h"

namespace Studio {

namespace {

struct Row {
    LPCWSTR english;
    LPCWSTR korean;
};

constexpr Row kRows[] = {
#define STUDIO_TEXT_ROW(key, english, korean) {english, korean},
    STUDIO_TEXTS(STUDIO_TEXT_ROW) STUDIO_EDIT_TEXTS(STUDIO_TEXT_ROW) STUDIO_PAGE_TEXTS(STUDIO_TEXT_ROW)
        STUDIO_RUN_TEXTS(STUDIO_TEXT_ROW)
#undef STUDIO_TEXT_ROW
};

Language g_language = Language::kEnglish;

}  // namespace

void SetLanguage(Language language) {
    g_language = language;
}

LPCWSTR GetText(Text text) {
    const Row& row = kRows[static_cast<int>(text)];
    return g_language == Language::kKorean ? row.korean : row.english;
}

CString GetPlainText(Text text) {
    CString plain;
    for (LPCWSTR c = GetText(text); *c; ++c) {
        const bool inParentheses = c[0] == L'(' && c[1] == L'&' && c[2] && c[3] == L')';
        if (inParentheses)
            c += 3;
        else if (*c != L'&')
            plain += *c;
    }
    return plain;
}

}  // namespace Studio
