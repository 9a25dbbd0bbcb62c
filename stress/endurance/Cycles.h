// What is repeated.
#pragma once

namespace endurance {

/// A canvas of the library: paints, resizes, files, pages. False when one of them does not stay flat.
bool EndureCanvas(int paints, int cycles);
/// Studio: files with undo, pages, clipboard, main windows.
bool EndureStudio(int cycles);

}  // namespace endurance
