// CIni, a settings file.
#pragma once

#include <afx.h>

#include <MarrowLogExport.h>

/// Values in a text file of `[section]` and `key=value` lines; lines that begin with `;` or `#` are comments.
/// Names of sections and keys are compared ignoring case. The file is UTF-16LE with a byte order mark, or
/// UTF-8 with or without one. Nothing is kept in memory: every read sees the file as it is. No member raises
/// an exception.
class MARROWLOG_CLASS CIni {
public:
    CIni();
    /// `path` names the file, which need not exist.
    explicit CIni(const CString& path);
    /// Copies the path.
    CIni(const CIni& other);
    CIni& operator=(const CIni& other);
    ~CIni();

    /// The file's path; empty names no file.
    const CString& GetPath() const { return m_path; }
    void SetPath(const CString& path) { m_path = path; }

    /// The value of `key` in `section`, or `defaultValue` when the file, the section or the key is missing.
    /// White space around a value is not part of it; one pair of quotes around it is taken off.
    CString GetString(const CString& section, const CString& key,
                      const CString& defaultValue = CString()) const;
    /// The same as a whole number; `defaultValue` also when the value is none.
    int GetInt(const CString& section, const CString& key, int defaultValue = 0) const;
    /// The same as a number; `defaultValue` also when the value is none.
    float GetFloat(const CString& section, const CString& key, float defaultValue = 0) const;

    /// Writes `value` for `key` in `section`, replacing the one that is there; comments, order and encoding
    /// of the file stay, a new file is UTF-16LE. The file is replaced whole or, with FALSE as the result, not
    /// at all: when it cannot be read, is not valid text of its encoding or cannot be written, or when a name
    /// or value cannot stand in such a file (line breaks; an empty name; `]` in a section; a key with `=` or
    /// that looks like another kind of line).
    BOOL SetString(const CString& section, const CString& key, const CString& value);
    /// The same with a whole number `value`.
    BOOL SetInt(const CString& section, const CString& key, int value);
    /// The same with a number `value`, written with as many digits as it takes to read back the same one.
    BOOL SetFloat(const CString& section, const CString& key, float value);

private:
    CString m_path;
};
