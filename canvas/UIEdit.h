// The in-place editor: an edit control over a text object.
#pragma once

#include "core/Platform.h"

namespace Lumo {

class CUIObjectTextEdit;

/// Edits the text of one text object where it stands. Enter stores the text, Escape drops it; both destroy
/// the window. The editor lives on the heap and deletes itself when its window is gone, clearing its owner's
/// pointer to it. `CUICanvas::EditText` opens and closes it.
class TESSEL_API CUIEdit : public CEdit {
    DECLARE_DYNAMIC(CUIEdit)

public:
    /// An editor without a window: `Create` must follow.
    CUIEdit();
    /// Only `PostNcDestroy` ends an editor that has had a window.
    ~CUIEdit() override;

    /// The plain control's, which edits no object.
    using CEdit::Create;
    /// Creates the control over `obj` as a child of `parent`, a canvas, and sets the object's editing flag.
    /// `ownerSlot` (may be null) is the owner's pointer to the editor; it is set to null when the editor
    /// goes. Neither is owned. When the window cannot be created the editor is already deleted and the result
    /// is FALSE.
    BOOL Create(CWnd* parent, CUIEdit** ownerSlot, CUIObjectTextEdit* obj);

    /// Shows the object's text, all of it selected, and measures the font.
    void InitialText();
    /// Uses the font `lf` from now on. It belongs to the editor.
    void ChangeFont(LOGFONT& lf);
    /// Makes the control as high as its lines and centres it vertically over the object.
    void ReSize();
    /// Stores the text in the object. An empty text leaves the object's as it was.
    void SaveText();

    /// The object being edited; not owned, never null once created.
    CUIObjectTextEdit* GetEditedObject() const { return m_pObject; }
    /// Average width of a character of the font, in pixels.
    int GetCharWidth() const { return m_nCharWidth; }
    /// Height of a line including the space below it, in pixels.
    int GetLineHeight() const { return m_nLineHeight; }

    /// Clears the owner's pointer, then destroys the window without saving and without touching the object.
    BOOL DestroyWindow() override;
    /// Keeps keyboard messages away from the host's accelerators.
    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    /// Clears the owner's pointer and deletes the editor.
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnChar(UINT ch, UINT repeat, UINT flags);

    CRect m_rect;                            ///< the object's rectangle in client coordinates of the parent
    CUIObjectTextEdit* m_pObject = nullptr;  ///< see `GetEditedObject`
    CUIEdit** m_ppOwner = nullptr;           ///< the owner's pointer to the editor, may be null
    CFont m_font;                            ///< the font in use
    int m_nCharWidth = 0;                    ///< see `GetCharWidth`
    int m_nLineHeight = 0;                   ///< see `GetLineHeight`

private:
    void calcTextMetrics();
    void LeaveOwner();
};

}  // namespace Lumo
