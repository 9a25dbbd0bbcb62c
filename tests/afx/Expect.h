// Shared by the tests of the class library: readable texts in failures, and the cause of a thrown exception.
#pragma once

#include <afx.h>

#include <gtest/gtest.h>

#include <ostream>

inline void PrintTo(const CString& text, std::ostream* out) {
    *out << "L\"";
    for (int i = 0; i < text.GetLength(); ++i)
        *out << (text[i] >= 0x20 && text[i] < 0x7F ? char(text[i]) : '?');
    *out << '"';
}

/// The cause of the `Exception` that the call throws; -1 when it throws none.
template <class Exception, class Call>
int CauseOf(Call call) {
    try {
        call();
    } catch (Exception* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

/// Whether the call throws an exception of exactly this class.
template <class Exception, class Call>
bool Throws(Call call) {
    try {
        call();
    } catch (CException* e) {
        const bool same = e->GetRuntimeClass() == RUNTIME_CLASS(Exception);
        e->Delete();
        return same;
    }
    return false;
}
