#include <afxcoll.h>

#include <algorithm>
#include <memory>
#include <new>

IMPLEMENT_DYNAMIC(CStringList, CObject)

/// Nodes that were allocated together.
struct CStringList::CBlock {
    CBlock* pNext;
    std::unique_ptr<CNode[]> nodes;
};

CStringList::CStringList(INT_PTR nBlockSize) : m_nBlockSize(std::max<INT_PTR>(nBlockSize, 1)) {}

CStringList::~CStringList() {
    RemoveAll();
}

CStringList::CNode* CStringList::Node(POSITION position) {
    if (!position)
        AfxThrowInvalidArgException();
    return static_cast<CNode*>(position);
}

CStringList::CNode* CStringList::NewNode(const CString& text) {
    if (!m_pNodeFree) {
        std::unique_ptr<CNode[]> nodes(new (std::nothrow) CNode[m_nBlockSize]());
        CBlock* block = nodes ? new (std::nothrow) CBlock : nullptr;
        if (!block)
            AfxThrowMemoryException();
        for (INT_PTR i = 0; i + 1 < m_nBlockSize; ++i)
            nodes[i].pNext = &nodes[i + 1];
        m_pNodeFree = &nodes[0];
        block->pNext = m_pBlocks;
        block->nodes = std::move(nodes);
        m_pBlocks = block;
    }
    CNode* node = m_pNodeFree;
    m_pNodeFree = node->pNext;
    node->data = text;
    return node;
}

void CStringList::FreeNode(CNode* node) {
    node->data.Empty();
    node->pNext = m_pNodeFree;
    m_pNodeFree = node;
    if (--m_nCount == 0)
        RemoveAll();
}

void CStringList::RemoveAll() {
    m_pNodeHead = m_pNodeTail = m_pNodeFree = nullptr;
    m_nCount = 0;
    while (CBlock* block = m_pBlocks) {
        m_pBlocks = block->pNext;
        delete block;
    }
}

POSITION CStringList::Link(CNode* before, CNode* after, const CString& text) {
    CNode* node = NewNode(text);
    node->pPrev = before;
    node->pNext = after;
    (before ? before->pNext : m_pNodeHead) = node;
    (after ? after->pPrev : m_pNodeTail) = node;
    ++m_nCount;
    return node;
}

POSITION CStringList::AddHead(const CString& newElement) {
    return Link(nullptr, m_pNodeHead, newElement);
}

POSITION CStringList::AddTail(const CString& newElement) {
    return Link(m_pNodeTail, nullptr, newElement);
}

void CStringList::AddTail(CStringList* pNewList) {
    POSITION from = pNewList->GetHeadPosition();
    // Counted beforehand: the other list may be this one.
    for (INT_PTR left = pNewList->GetCount(); left > 0; --left)
        AddTail(pNewList->GetNext(from));
}

POSITION CStringList::InsertBefore(POSITION position, const CString& newElement) {
    if (!position)
        return AddHead(newElement);
    return Link(Node(position)->pPrev, Node(position), newElement);
}

POSITION CStringList::InsertAfter(POSITION position, const CString& newElement) {
    if (!position)
        return AddTail(newElement);
    return Link(Node(position), Node(position)->pNext, newElement);
}

void CStringList::RemoveAt(POSITION position) {
    CNode* node = Node(position);
    (node->pPrev ? node->pPrev->pNext : m_pNodeHead) = node->pNext;
    (node->pNext ? node->pNext->pPrev : m_pNodeTail) = node->pPrev;
    FreeNode(node);
}

CString CStringList::RemoveHead() {
    CString removed = GetHead();
    RemoveAt(m_pNodeHead);
    return removed;
}

CString CStringList::RemoveTail() {
    CString removed = GetTail();
    RemoveAt(m_pNodeTail);
    return removed;
}

CString& CStringList::GetNext(POSITION& rPosition) {
    CNode* node = Node(rPosition);
    rPosition = node->pNext;
    return node->data;
}

const CString& CStringList::GetNext(POSITION& rPosition) const {
    return const_cast<CStringList*>(this)->GetNext(rPosition);
}

CString& CStringList::GetPrev(POSITION& rPosition) {
    CNode* node = Node(rPosition);
    rPosition = node->pPrev;
    return node->data;
}

const CString& CStringList::GetPrev(POSITION& rPosition) const {
    return const_cast<CStringList*>(this)->GetPrev(rPosition);
}

POSITION CStringList::Find(LPCWSTR searchValue, POSITION startAfter) const {
    CNode* node = startAfter ? Node(startAfter)->pNext : m_pNodeHead;
    while (node && node->data != searchValue)
        node = node->pNext;
    return node;
}

POSITION CStringList::FindIndex(INT_PTR nIndex) const {
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    CNode* node = m_pNodeHead;
    while (nIndex-- > 0)
        node = node->pNext;
    return node;
}
