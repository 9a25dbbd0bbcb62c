// The eight records that make up the appearance and geometry of an object.
//
// They are value classes: fields are public, every value is stored as it comes, and what a code means is
// decided by the renderer. Colours are ARGB (alpha in the top byte), alpha and brightness run from 0 to 255.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Kind of a shape-format record; the values are written to archives. 0 and 6 to 13 are not used.
enum ShapeFormatType : int {
    SFT_TEXT = 1,       ///< `CUIShapeFormatText`
    SFT_FILL = 2,       ///< `CUIShapeFormatFill`
    SFT_LINECOLOR = 3,  ///< `CUIShapeFormatLineColor`
    SFT_LINESTYLE = 4,  ///< `CUIShapeFormatLineStyle`
    SFT_SHADOW = 5,     ///< `CUIShapeFormatShadow`
    SFT_SCALE = 14,     ///< `CUIShapeFormatScale`
    SFT_POSITION = 15,  ///< `CUIShapeFormatPosition`
    SFT_TEXTBOX = 16,   ///< `CUIShapeFormatTextBox`
};

/// Base of the records: kind, name and enabled flag. Virtual members stand in a fixed order.
class TESSEL_API CUIShapeFormat {
public:
    /// A record of the kind `type`, called `name`.
    CUIShapeFormat(ShapeFormatType type, const CString& name, int enabled);
    CUIShapeFormat(const CUIShapeFormat&) = default;
    CUIShapeFormat& operator=(const CUIShapeFormat&) = default;

    virtual ~CUIShapeFormat();

    /// Copies kind, name and enabled flag, and nothing else, also between derived records.
    virtual void Set(const CUIShapeFormat& other);

    /// Loads the defaults. Kind becomes 1 and the name empty whatever the class is.
    virtual void LoadDefault();

    /// Writes or reads the record. Raises the archive's exceptions.
    virtual void Serialize(CArchive& ar);

    /// Destroys a record that was created on the heap on its own.
    virtual void Release();

    /// Kind of the record; 1 after `LoadDefault` in every class.
    ShapeFormatType m_nType;
    /// Name of the record; empty after `LoadDefault`.
    CString m_strName;
    /// 0 makes renderers skip the record.
    int m_bEnabled;
};

/// Caption of an object.
class TESSEL_API CUIShapeFormatText : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_TEXT;

    /// Kind, name and enabled flag of the class; the other fields are zero until `LoadDefault`.
    CUIShapeFormatText();
    /// The same, called `name`.
    CUIShapeFormatText(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatText& other) { *this = other; }

    /// What `m_nAlignment` means to GDI+; near for a number that means nothing.
    Gdiplus::StringAlignment GetAlignment() const;
    /// What `m_nUnit` means to GDI+; for a number that means nothing a unit that no font can have.
    Gdiplus::Unit GetUnit() const;
    /// What `m_nRenderHint` means to GDI+; the system's default for a number that means nothing.
    Gdiplus::TextRenderingHint GetRenderHint() const;

    CString m_strText;         ///< caption
    float m_fFontSize = 0.0f;  ///< em size in the unit below
    CString m_strFontName;     ///< font family
    DWORD m_dwTextColor = 0;   ///< colour of the letters
    DWORD m_dwBackColor = 0;   ///< background colour, not painted
    int m_nAlignment = 0;      ///< `Gdiplus::StringAlignment`, both directions; not archived
    int m_nUnit = 0;           ///< `Gdiplus::Unit` of the font size; archived but not read back
    int m_nFontStyle = 0;      ///< `Gdiplus::FontStyle` bits
    int m_nRenderHint = 0;     ///< `Gdiplus::TextRenderingHint`
};

/// Interior of a shape.
class TESSEL_API CUIShapeFormatFill : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_FILL;

    /// Kind, name and enabled flag of the class and shape mode 1; the other fields are zero.
    CUIShapeFormatFill();
    /// A record called `name`; the other fields are zero.
    CUIShapeFormatFill(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatFill& other) { *this = other; }

    /// What a solid fill is painted with: the colour with the alpha merged into its top byte by OR, so that
    /// alpha bits which the colour already has stay set.
    DWORD GetBrushColor() const;

    /// 1 and 2 solid, 3 vertical gradient, 4 tiled image, 5 image at its own size, 6 faded picture.
    int m_nShapeMode = 0;
    DWORD m_dwColor = 0;              ///< main colour, first colour of the gradient
    float m_fAlpha = 0.0f;            ///< opacity of a solid fill
    float m_fBlight = 0.0f;           ///< brightness, kept for the host
    DWORD m_dwGradientColor = 0;      ///< second colour of the gradient
    int m_nGradientType = 0;          ///< kept for the host
    DWORD m_dwGradientDirection = 0;  ///< kept for the host
    CString m_strImagePath;           ///< image file of modes 4 to 6
    int m_nPatternStyle = 0;          ///< kept for the host
    DWORD m_dwForeColor = 0;          ///< pattern foreground, kept for the host
    DWORD m_dwBackColor = 0;          ///< pattern background, kept for the host
};

/// Colour of an outline.
class TESSEL_API CUIShapeFormatLineColor : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_LINECOLOR;

    /// Kind, name and enabled flag of the class and shape mode 1; the other fields are zero.
    CUIShapeFormatLineColor();
    /// A record called `name`; the other fields are zero.
    CUIShapeFormatLineColor(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatLineColor& other) { *this = other; }

    /// Stores in `color` what the outline is drawn with; false when the record is disabled or its mode draws
    /// none.
    bool GetPenColor(DWORD* color) const;

    int m_nShapeMode = 0;             ///< 1 opaque colour, 2 alpha merged in, others no outline
    DWORD m_dwColor = 0;              ///< colour of the outline
    float m_fAlpha = 0.0f;            ///< opacity in mode 2
    float m_fBlight = 0.0f;           ///< brightness, kept for the host
    DWORD m_dwGradientColor = 0;      ///< kept for the host
    int m_nGradientType = 0;          ///< kept for the host
    DWORD m_dwGradientDirection = 0;  ///< kept for the host
};

/// Pen of an outline.
class TESSEL_API CUIShapeFormatLineStyle : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_LINESTYLE;

    /// Kind, name and enabled flag of the class; the other fields are zero until `LoadDefault`.
    CUIShapeFormatLineStyle();
    /// The same, called `name`.
    CUIShapeFormatLineStyle(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatLineStyle& other) { *this = other; }

    /// Gives `pen` the caps of both ends; flat for a custom cap, of which the record keeps no shape.
    void SetPenCaps(Gdiplus::Pen& pen) const;

    float m_fWidth = 0.0f;             ///< pen width in page units
    int m_nAlignment = 0;              ///< `Gdiplus::PenAlignment`; not archived
    int m_nDashStyle = 0;              ///< `Gdiplus::DashStyle`
    int m_nDashCap = 0;                ///< `Gdiplus::DashCap`
    int m_nJoin = 0;                   ///< `Gdiplus::LineJoin`
    int m_nStartCap = 0;               ///< `Gdiplus::LineCap` of the start of a line
    int m_nEndCap = 0;                 ///< `Gdiplus::LineCap` of the end of a line
    float m_fDash[4] = {};             ///< custom dash pattern
    int m_nCapType = 0;                ///< kept for the host
    int m_nReserved1 = 0;              ///< kept and archived
    int m_nReserved2 = 0;              ///< kept and archived
    float m_fStartArrowWidth = 0.0f;   ///< start arrow, first size
    float m_fStartArrowHeight = 0.0f;  ///< start arrow, second size
    int m_bStartArrowFilled = 0;       ///< start arrow, 1 when filled
    float m_fEndArrowWidth = 0.0f;     ///< end arrow, first size
    float m_fEndArrowHeight = 0.0f;    ///< end arrow, second size
    int m_bEndArrowFilled = 0;         ///< end arrow, 1 when filled
};

/// Shadow of a shape; kept and archived, not painted.
class TESSEL_API CUIShapeFormatShadow : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_SHADOW;

    /// Kind, name and enabled flag of the class; the other fields are zero until `LoadDefault`.
    CUIShapeFormatShadow();
    /// The same, called `name`.
    CUIShapeFormatShadow(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatShadow& other) { *this = other; }

    DWORD m_dwColor = 0;       ///< colour
    float m_fAlpha = 0.0f;     ///< opacity
    float m_fReal = 0.0f;      ///< kept for the host
    float m_fAngle = 0.0f;     ///< direction in degrees
    Gdiplus::PointF m_first;   ///< kept for the host
    Gdiplus::PointF m_second;  ///< kept for the host
};

/// Size, scale factors and rotation of an object.
class TESSEL_API CUIShapeFormatScale : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_SCALE;

    /// Kind, name and enabled flag of the class; the other fields are zero until `LoadDefault`.
    CUIShapeFormatScale();
    /// The same, called `name`.
    CUIShapeFormatScale(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatScale& other) { *this = other; }

    float m_fWidth = 0.0f;        ///< width in page units
    float m_fHeight = 0.0f;       ///< height in page units
    float m_fScaleX = 0.0f;       ///< horizontal factor
    float m_fScaleY = 0.0f;       ///< vertical factor
    float m_fRotateAngle = 0.0f;  ///< degrees, clockwise
    int m_nRatio = 0;             ///< 1 to keep the aspect ratio
};

/// Place of an object.
class TESSEL_API CUIShapeFormatPosition : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_POSITION;

    /// Kind, name and enabled flag of the class; the other fields are zero until `LoadDefault`.
    CUIShapeFormatPosition();
    /// The same, called `name`.
    CUIShapeFormatPosition(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatPosition& other) { *this = other; }

    float m_fX = 0.0f;   ///< left edge, page units
    float m_fY = 0.0f;   ///< top edge, page units
    int m_nOffsetX = 0;  ///< displacement added when the position is read
    int m_nOffsetY = 0;  ///< the same, vertically
};

/// Values of a text box; kept and archived for the host.
class TESSEL_API CUIShapeFormatTextBox : public CUIShapeFormat {
public:
    /// The kind that `CUICoordinate::GetShapeFormat` knows this record by.
    static constexpr ShapeFormatType Type = SFT_TEXTBOX;

    /// Kind, name and enabled flag of the class; the other fields are zero until `LoadDefault`.
    CUIShapeFormatTextBox();
    /// The same, called `name`.
    CUIShapeFormatTextBox(const CString& name, int enabled);

    using CUIShapeFormat::Set;
    void LoadDefault() override;
    void Serialize(CArchive& ar) override;
    /// Copies every field.
    virtual void Set(const CUIShapeFormatTextBox& other) { *this = other; }

    int m_nCode1 = 0;       ///< first code
    int m_nCode2 = 0;       ///< second code
    int m_nCode3 = 0;       ///< third code
    float m_fReal1 = 0.0f;  ///< first real
    float m_fReal2 = 0.0f;  ///< second real
    float m_fReal3 = 0.0f;  ///< third real
    float m_fReal4 = 0.0f;  ///< fourth real
    int m_nFlag = 0;        ///< flag
    float m_fReal5 = 0.0f;  ///< fifth real
};

}  // namespace Lumo
