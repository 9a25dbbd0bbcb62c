// The heading of a section in the property panel.
#pragma once

#include "studio/app/Texts.h"

namespace Studio {

/// A heading that folds its section away and back. The parent passes its draw messages on.
class SectionHeader : public CButton {
public:
    static constexpr int kHeight = 28;

    using CButton::Create;
    bool Create(CWnd& parent, Text title, UINT id);
    bool IsOpen() const { return m_open; }
    void Toggle();
    void Draw(const DRAWITEMSTRUCT& item) const;

private:
    Text m_title = Text::kAppName;
    bool m_open = true;
};

}  // namespace Studio
