// Studio's main window: menu, toolbox, page, status bar.
#pragma once

#include "studio/app/PageTabs.h"
#include "studio/app/RunMode.h"
#include "studio/app/StatusBar.h"
#include "studio/app/SymbolPanel.h"
#include "studio/app/Toolbox.h"
#include "studio/app/panels/PropertyPanel.h"
#include "studio/document/Autosave.h"
#include "studio/document/StudioDocument.h"
#include "studio/editing/PageTool.h"

#include <Ini.h>

class COleInsertDialog;

namespace Studio {

/// Owns document, tools and bars; routes every command. Deletes itself with its window.
class MainFrame : public CFrameWnd, public CanvasListener, private PropertyPanelOwner {
public:
    MainFrame() = default;
    ~MainFrame() override;

    /// Makes the window with a new document. False when that fails; the object deletes itself then or with
    /// its window.
    bool CreateFrame();
    /// Shows the frame as `show` says, where it was when it was closed the last time; it will be kept again.
    void ShowWhereItWas(int show);
    /// Opens a file; a refused one is reported and changes nothing.
    void OpenPath(const CString& path);
    /// Opens the demo project as a document without a file.
    void OpenDemo();
    /// Begins without a file: offers what an earlier run could not save, and shows the demo project on the
    /// very first start, or when it is asked for.
    void Start(bool demo);

    /// Runs the pages instead of editing them, or returns to editing.
    void SetRunning(bool running);
    bool IsRunning() const { return m_run.IsRunning(); }

    void OnCanvasState(StudioCanvas& canvas) override;
    void OnCanvasPointer(StudioCanvas& canvas, const CPoint* at) override;
    void OnCanvasMenu(StudioCanvas& canvas, CPoint screen) override;
    void OnCanvasPicture(StudioCanvas& canvas, const Gdiplus::RectF& place) override;
    void OnCanvasEmbedded(StudioCanvas& canvas, EmbeddedObject& object) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    afx_msg void OnExit();
    afx_msg void OnAbout();
    afx_msg void OnPageCommand(UINT command);
    afx_msg void OnUpdatePageCommand(CCmdUI* ui);
    afx_msg void OnViewProperties();
    afx_msg void OnUpdateViewProperties(CCmdUI* ui);
    afx_msg void OnProperties();
    afx_msg void OnUpdateProperties(CCmdUI* ui);
    afx_msg BOOL OnMouseWheel(UINT flags, short turn, CPoint screen);

    afx_msg void OnExportPage();
    afx_msg void OnOpenDemo();
    afx_msg void OnPagesCommand(UINT command);
    afx_msg void OnUpdatePagesCommand(CCmdUI* ui);
    afx_msg void OnViewSymbols();
    afx_msg void OnUpdateViewSymbols(CCmdUI* ui);
    afx_msg void OnInsertEmbedded();
    afx_msg void OnRun();
    afx_msg void OnRunEscape();
    BOOL OnNotify(WPARAM id, LPARAM notify, LRESULT* result) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    StudioCanvas* PropertyPage() override { return Page(); }
    void OnPropertyRefused(const CString& reason) override;
    void ShowProperties(bool show);

    StudioCanvas* Page() { return m_document ? m_document->CurrentPage() : nullptr; }
    CString FileName() const;
    bool AskForPath(bool open, CString& path);
    bool SaveTo(CString path);
    bool SaveDocument();
    bool MayDiscard();
    void FinishEditing();
    void ShowPage();
    void LayOut();
    void RefreshTitle();
    void RefreshStatus();
    CString SelectionText();

    bool CreatePageParts();
    void ShowPagesMenu(CPoint screen);
    void InsertSymbol(const CString& path, const CPoint* screen);
    void InsertEmbedded(StudioCanvas& page, COleInsertDialog& dialog);
    void OnPagesChanged();
    void StartAutosave();
    void AutosaveNow();
    bool RecoverFor(const CString& path);
    bool RecoverUntitled();
    static bool AskRecover(const CString& name);
    bool Recover(const CString& copy, const CString& path);

    void RefreshRunStatus();

    PageTools m_tools;
    Toolbox m_toolbox;
    StatusBar m_status;
    PropertyPanel m_properties{*this};
    bool m_showProperties = true;
    CString m_refusal;          // of a typed property, or of automatic saving
    CString m_autosaveTrouble;  // empty when the last automatic saving went well
    StudioDocument* m_document = nullptr;
    PageTabs m_tabs;
    SymbolPanel m_symbols;
    bool m_showSymbols = true;
    std::unique_ptr<Autosave> m_autosave;
    Lumo::Timer m_autosaveTimer;
    HACCEL m_keys = nullptr;
    HACCEL m_runKeys = nullptr;
    HMENU m_menuBar = nullptr;
    RunMode m_run;
    CString m_title;
    CIni m_placement;  // without a path nothing is kept
};

}  // namespace Studio
