// The file that inputs are written to.
#pragma once

#include "Mutation.h"

#include <afx.h>

/// Writes the bytes to this process's scratch file, and gives its path.
CString WriteScratch(const Bytes& bytes);
/// What the scratch file holds now.
Bytes ReadScratch();
void DeleteScratch();
