// CStringList, a doubly linked list of strings.
#pragma once

#include <afx.h>

struct __POSITION {};
/// A place in a list; null behind the end.
using POSITION = __POSITION*;

/// A list of strings. Its nodes are taken from blocks of a given number of nodes and given back when the list
/// becomes empty. Access to an entry that is not there raises CInvalidArgException.
class AFX_CLASS_EXPORT CStringList : public CObject {
    DECLARE_DYNAMIC(CStringList)

    /// `nBlockSize`: nodes that are allocated at a time, at least 1.
    explicit CStringList(INT_PTR nBlockSize = 10);
    ~CStringList() override;

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    CString& GetHead() { return Node(m_pNodeHead)->data; }
    const CString& GetHead() const { return Node(m_pNodeHead)->data; }
    CString& GetTail() { return Node(m_pNodeTail)->data; }
    const CString& GetTail() const { return Node(m_pNodeTail)->data; }
    CString RemoveHead();
    CString RemoveTail();

    POSITION AddHead(LPCWSTR newElement) { return AddHead(CString(newElement)); }
    POSITION AddHead(const CString& newElement);
    POSITION AddTail(LPCWSTR newElement) { return AddTail(CString(newElement)); }
    POSITION AddTail(const CString& newElement);
    /// Adds copies of another list's entries in their order.
    void AddTail(CStringList* pNewList);
    void RemoveAll();

    POSITION GetHeadPosition() const { return Position(m_pNodeHead); }
    POSITION GetTailPosition() const { return Position(m_pNodeTail); }
    /// The entry at `rPosition`, which moves on: null behind the last or before the first one.
    CString& GetNext(POSITION& rPosition);
    const CString& GetNext(POSITION& rPosition) const;
    CString& GetPrev(POSITION& rPosition);
    const CString& GetPrev(POSITION& rPosition) const;

    CString& GetAt(POSITION position) { return Node(position)->data; }
    const CString& GetAt(POSITION position) const { return Node(position)->data; }
    void SetAt(POSITION pos, LPCWSTR newElement) { Node(pos)->data = newElement; }
    void SetAt(POSITION pos, const CString& newElement) { Node(pos)->data = newElement; }
    void RemoveAt(POSITION position);
    /// A null position means the head for InsertBefore and the tail for InsertAfter.
    POSITION InsertBefore(POSITION position, const CString& newElement);
    POSITION InsertAfter(POSITION position, const CString& newElement);

    /// The first entry behind `startAfter` (null: from the head) with exactly this text; null when there is
    /// none.
    POSITION Find(LPCWSTR searchValue, POSITION startAfter = nullptr) const;
    /// The entry with this 0-based index; null when there is none.
    POSITION FindIndex(INT_PTR nIndex) const;

private:
    struct CNode : __POSITION {
        CNode* pNext;
        CNode* pPrev;
        CString data;
    };
    struct CBlock;

    static POSITION Position(CNode* node) { return node; }
    static CNode* Node(POSITION position);
    CNode* NewNode(const CString& text);
    void FreeNode(CNode* node);
    POSITION Link(CNode* before, CNode* after, const CString& text);

    CNode* m_pNodeHead = nullptr;
    CNode* m_pNodeTail = nullptr;
    INT_PTR m_nCount = 0;
    CNode* m_pNodeFree = nullptr;
    CBlock* m_pBlocks = nullptr;
    INT_PTR m_nBlockSize;
};
