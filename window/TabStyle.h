// How a tab control looks: one style object per control, in families of styles with colour variants.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Ready-made colours of tab controls.
enum class TabTheme {
    kLight,  ///< greys on white with a blue accent
    kDark,   ///< light texts on near black
    kBlue,   ///< blues on white
};

/// The colours a style paints with.
struct TabColors {
    COLORREF ground;       ///< the strip behind the tabs
    COLORREF tab;          ///< a tab that is neither current nor under the pointer
    COLORREF hover;        ///< the tab under the pointer
    COLORREF current;      ///< the current tab
    COLORREF text;         ///< texts and signs
    COLORREF currentText;  ///< text of the current tab
    COLORREF edge;         ///< lines around and between tabs
    COLORREF accent;       ///< the mark of the current tab, and of the place where a dragged tab would go
};

/// The colours of `theme`.
TESSEL_API TabColors TabColorsOf(TabTheme theme);

/// The side of the pages on which the tabs are.
enum class TabSide {
    kAbove,  ///< above the pages
    kBelow,  ///< below the pages
    kLeft,   ///< at their left; texts are read upwards
    kRight,  ///< at their right; texts are read downwards
};

/// What is painted besides the tabs.
enum class TabSign {
    kClose,        ///< a cross
    kAdd,          ///< a plus
    kScrollLeft,   ///< an arrow to the left
    kScrollRight,  ///< an arrow to the right
    kScrollUp,     ///< an arrow upwards
    kScrollDown,   ///< an arrow downwards
};

/// How a tab or a sign is shown now.
struct TabState {
    bool current = false;   ///< the current tab
    bool hover = false;     ///< under the pointer
    bool pressed = false;   ///< held by the button or dragged
    bool focused = false;   ///< the current tab of a control that has the keyboard
    bool disabled = false;  ///< a sign that does nothing now
};

/// The base of all styles: measures and paints a plain strip of rectangles. A host's own style overrides what
/// looks different. Sizes are in pixels at the style's scale.
class TESSEL_API TabStyle {
public:
    /// A style in `colors`.
    explicit TabStyle(const TabColors& colors);
    virtual ~TabStyle() = default;
    TabStyle(const TabStyle&) = delete;
    TabStyle& operator=(const TabStyle&) = delete;

    /// The colours it paints with.
    const TabColors& Colors() const { return m_colors; }
    /// The font of the texts; the system's for menus and small captions. Owned by the style.
    HFONT Font() const { return m_font; }
    /// Sets the scale to `dpi` dots per inch, 96 being 100 %; it is the screen's at the start. A tab control
    /// sets it for its own window.
    void SetDpi(int dpi);
    /// A length of `pixels` at 96 dots per inch, in pixels of the style's scale.
    int Scaled(int pixels) const { return ::MulDiv(pixels, m_dpi, 96); }

    /// Thickness of the strip: its height above and below the pages, its width at their sides.
    virtual int Height() const { return Scaled(30); }
    /// Space between two tabs; negative when they overlap.
    virtual int Gap() const { return 0; }
    /// Space before the first tab.
    virtual int Indent() const { return Scaled(6); }
    /// Space between a tab's edge and its text.
    virtual int Padding() const { return Scaled(14); }
    /// Length of a tab, along the strip, for a text that is `textWidth` long, without picture and close
    /// button.
    virtual int TabWidth(int textWidth) const;
    /// The rectangle that a tab paints in; `cell` is the part of the strip that belongs to it.
    virtual CRect TabBounds(const CRect& cell, TabSide side) const;

    /// Paints the whole `strip` before the tabs.
    virtual void DrawGround(CDC& dc, const CRect& strip, TabSide side) const;
    /// Paints one tab, whose rectangle is `bounds`, without its text. The current one is painted last.
    virtual void DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const;
    /// The colour of a tab's text.
    virtual COLORREF TextColorOf(const TabState& state) const;
    /// Paints `text` into `bounds`, which is what the tab leaves for it. At the left and right `dc` and
    /// `bounds` are those of an upright part of the tab, which is turned afterwards.
    virtual void DrawText(CDC& dc, const CString& text, const CRect& bounds, const TabState& state) const;
    /// Paints `sign` in the middle of `bounds`.
    virtual void DrawSign(CDC& dc, TabSign sign, const CRect& bounds, const TabState& state) const;
    /// Paints the mark on `strip`, above or below the pages, between two tabs at which a dragged one would
    /// go; `x` is between them.
    virtual void DrawDropMark(CDC& dc, int x, const CRect& strip) const;
    /// The same on a `strip` at any side: `at` is between the tabs, x above and below, y at the left and
    /// right.
    virtual void DrawDropMarkAt(CDC& dc, int at, const CRect& strip, TabSide side) const;
    /// Width of the frame around the pages, for a control that shows one.
    virtual int FrameWidth() const { return 0; }
    /// Paints the frame into `area`, which is all that the strip leaves, and the ground of the pages within.
    virtual void DrawFrame(CDC& dc, const CRect& area, TabSide side) const;

protected:
    /// The colour of a tab's face.
    COLORREF FaceOf(const TabState& state) const;

private:
    TabColors m_colors;
    int m_dpi = 96;
    CFont m_font;
};

/// No faces: texts on the strip, the current one in the accent colour with a bar at the page's side.
class TESSEL_API FlatTabStyle : public TabStyle {
public:
    /// The style in the colours of `theme`.
    explicit FlatTabStyle(TabTheme theme = TabTheme::kLight) : TabStyle(TabColorsOf(theme)) {}
    /// The style in `colors`.
    explicit FlatTabStyle(const TabColors& colors) : TabStyle(colors) {}

    void DrawGround(CDC& dc, const CRect& strip, TabSide side) const override;
    void DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const override;
    COLORREF TextColorOf(const TabState& state) const override;
};

/// Buttons on a bar: separate faces with round corners, the current one filled with the accent colour.
class TESSEL_API BarTabStyle : public TabStyle {
public:
    /// The style in the colours of `theme`.
    explicit BarTabStyle(TabTheme theme = TabTheme::kLight) : TabStyle(TabColorsOf(theme)) {}
    /// The style in `colors`.
    explicit BarTabStyle(const TabColors& colors) : TabStyle(colors) {}

    int Gap() const override { return Scaled(4); }
    CRect TabBounds(const CRect& cell, TabSide side) const override;
    void DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const override;
    COLORREF TextColorOf(const TabState& state) const override;
};

/// Index cards: the current tab is one piece with the page beside the strip, and with the frame around it.
class TESSEL_API ClientAreaTabStyle : public TabStyle {
public:
    /// The style in the colours of `theme`.
    explicit ClientAreaTabStyle(TabTheme theme = TabTheme::kLight) : TabStyle(TabColorsOf(theme)) {}
    /// The style in `colors`.
    explicit ClientAreaTabStyle(const TabColors& colors) : TabStyle(colors) {}

    int Gap() const override { return -1; }
    CRect TabBounds(const CRect& cell, TabSide side) const override;
    void DrawGround(CDC& dc, const CRect& strip, TabSide side) const override;
    void DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const override;
    int FrameWidth() const override { return Scaled(3); }
    void DrawFrame(CDC& dc, const CRect& area, TabSide side) const override;
};

}  // namespace Lumo
