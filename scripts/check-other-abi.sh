#!/usr/bin/env bash
# The library's sources as a compiler sees them that brings the class library itself: clang parses them for that ABI, with
# the macros min and max of the platform's headers, hence (std::min)(a, b), and afx/ standing in for the class library.
# Then the virtual members of every public class must have the same slots there as here. That is what can be seen without
# such a compiler: nothing is linked or run.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v clang++ >/dev/null; then
    echo "The other ABI is not checked: there is no clang++"
    exit 0
fi
echo "Checking the other ABI"
work=build/other-abi
mkdir -p "$work"
gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
common=(
    -std=gnu++20 -nostdlibinc -nostdinc++ -DUNICODE -D_UNICODE -D_WIN32_WINNT=0x0601 -DWINVER=0x0601 -DTESSEL_BUILD
    -DMARROWLOG_BUILD -D_AFXEXT -I. -Imarrowlog/include -isystem afx/include -isystem "$gcc/include/c++"
    -isystem "$gcc/include/c++/x86_64-w64-mingw32" -isystem "$gcc/include/c++/backward"
    -isystem /usr/x86_64-w64-mingw32/include
)
# The platform headers here have to be told that they are read by the compiler that they are made for. Message maps
# convert pointers to members.
other=(--target=x86_64-pc-windows-msvc -fgnuc-version=4.2.1 -D__declspec=__declspec -Xclang -fms-memptr-rep=single)
parse=("${common[@]}" "${other[@]}" -U_MSC_VER)

# What sources include in any order comes first, since the macros are a fault only in the library's own code.
{
    sed -nE 's/^#include <([a-z_]+)>.*/#include <\1>/p' */*.h */src/*.cpp marrowlog/include/*.h | sort -u
    echo '#include "core/Platform.h"'
    echo '#define min(a, b) (((a) < (b)) ? (a) : (b))'
    echo '#define max(a, b) (((a) > (b)) ? (a) : (b))'
} >"$work/first.h"
clang++ "${parse[@]}" -x c++-header "$work/first.h" -o "$work/first.pch"
printf '%s\0' {core,appearance,canvas,behaviour,window,filter,module,marrowlog}/src/*.cpp |
    xargs -0 -n 8 -P "$(nproc)" \
        clang++ "${parse[@]}" -include-pch "$work/first.pch" -fsyntax-only -w

# A host's class below each public class, for the tables of virtual members.
headers=({core,appearance,canvas,behaviour,window}/*.h)
{
    printf '#include "%s"\n' "${headers[@]}"
    cat <<'END'
using namespace Lumo;
template <class Base>
struct Host : Base {
    ~Host() { FirstOfTheHost(); }
    virtual void FirstOfTheHost() {}
};
template <class Base>
void End(Host<Base>* object) {
    if constexpr (std::is_polymorphic_v<Base>)
        object->Host<Base>::~Host();
}
END
    sed -nE 's/^class TESSEL_API ([A-Za-z0-9]+).*/template void End(Host<\1>*);/p' "${headers[@]}"
} >"$work/slots.cpp"

# slots COMPILER_OPTIONS...: lines of a class, the number of a slot and the member in it. Slots of the class library's own
# windows are left out: which there are is its affair.
slots() {
    clang++ "${common[@]}" "$@" -S -emit-llvm -o /dev/null -Xclang -fdump-vtable-layouts "$work/slots.cpp" | awk '
        /^V[A-Za-z]+ / { in_table = !/indices/; count = 0 }
        in_table && /^ *[0-9]+ \| / && !/RTTI|offset_to_top|\[complete\]| (CObject|CCmdTarget|CWnd|CEdit)::/ {
            sub(/^ *[0-9]+ \| /, "")
            sub(/\[.*deleting\]/, "[deleting]")
            member[count++] = $0
        }
        match($0, /^void Host<[^>]*>::FirstOfTheHost/) {
            name = substr($0, 11, RLENGTH - 27)
            for (slot = 0; slot < count - 1; ++slot) print name "\t" slot "\t" member[slot]
            count = 0
        }
    ' | sort -u
}
slots --target=x86_64-w64-windows-gnu >"$work/slots.here"
slots "${other[@]}" >"$work/slots.there"
[ "$(wc -l <"$work/slots.here")" -gt 500 ] || { echo "There are hardly any virtual members."; exit 1; }
diff "$work/slots.here" "$work/slots.there"
