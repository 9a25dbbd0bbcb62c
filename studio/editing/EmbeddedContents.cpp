#include "studio/editing/EmbeddedContents.h"

#include "studio/document/Checksum.h"
#include "studio/document/ObjectArchive.h"
#include "studio/editing/ComPtr.h"

#include <algorithm>
#include <cstring>

namespace Studio {

using Gdiplus::Bitmap;

namespace {

constexpr DWORD kMostBytes = 256u << 20;
constexpr size_t kPiece = 64u << 10;
constexpr int kLongestName = 256;

void Require(bool sound) {
    if (!sound)
        throw FileFault{Text::kFaultContent};
}

void StoreBytes(CArchive& ar, const std::vector<BYTE>& bytes) {
    ar << static_cast<DWORD>(bytes.size());
    if (!bytes.empty())
        ar.Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

// Piece by piece: a wrong length ends with the archive, and not in one huge block of memory.
std::vector<BYTE> LoadBytes(CArchive& ar) {
    DWORD size;
    ar >> size;
    Require(size <= kMostBytes);
    std::vector<BYTE> bytes;
    while (bytes.size() < size) {
        const size_t had = bytes.size();
        const size_t piece = std::min<size_t>(kPiece, size - had);
        bytes.resize(had + piece);
        Require(ar.Read(bytes.data() + had, static_cast<UINT>(piece)) == piece);
    }
    return bytes;
}

DWORD NumberAt(const std::vector<BYTE>& png, size_t at) {
    return DWORD{png[at]} << 24 | DWORD{png[at + 1]} << 16 | DWORD{png[at + 2]} << 8 | png[at + 3];
}

// Not every decoder survives blocks that are damaged or stand where they must not. Each block is its length,
// name, data and checksum; the first one tells the size and the last one, without data, ends the file.
bool AreBlocksSound(const std::vector<BYTE>& png) {
    constexpr size_t kSignature = 8, kAround = 12;
    constexpr DWORD kFirst = 0x49484452, kLast = 0x49454E44;  // "IHDR", "IEND"
    size_t at = kSignature;
    for (bool first = true; at + kAround <= png.size(); first = false) {
        const DWORD length = NumberAt(png, at);
        const DWORD name = NumberAt(png, at + 4);
        if (length > png.size() - at - kAround || first != (name == kFirst) ||
            UpdateChecksum(0, &png[at + 4], length + 4) != NumberAt(png, at + 8 + length))
            return false;
        at += kAround + length;
        if (name == kLast)
            return at == png.size();
    }
    return false;
}

// A PNG file begins with its signature and a block that tells the size: a few bytes can claim a picture that
// no memory could hold.
bool IsPicture(const std::vector<BYTE>& png) {
    constexpr BYTE kBegin[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
    constexpr size_t kWidth = sizeof kBegin, kHeight = kWidth + 4;
    if (png.size() < kHeight + 4 || std::memcmp(png.data(), kBegin, sizeof kBegin) != 0)
        return false;
    const auto isSide = [](DWORD side) { return side > 0 && side <= DWORD{EmbeddedContents::kLargestSide}; };
    return isSide(NumberAt(png, kWidth)) && isSide(NumberAt(png, kHeight));
}

// Copied into the format that is drawn fastest.
std::unique_ptr<Bitmap> Decode(const std::vector<BYTE>& png) {
    if (!AreBlocksSound(png))
        return nullptr;
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, png.size());
    if (!memory)
        return nullptr;
    std::memcpy(::GlobalLock(memory), png.data(), png.size());
    ::GlobalUnlock(memory);
    IStream* made = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(memory, TRUE, &made))) {
        ::GlobalFree(memory);
        return nullptr;
    }
    const ComPtr<IStream> stream(made);
    Bitmap file(stream.get());
    const auto width = static_cast<INT>(file.GetWidth());
    const auto height = static_cast<INT>(file.GetHeight());
    if (file.GetLastStatus() != Gdiplus::Ok || width <= 0 || height <= 0)
        return nullptr;
    auto image = std::make_unique<Bitmap>(width, height, PixelFormat32bppPARGB);
    if (image->GetLastStatus() != Gdiplus::Ok)
        return nullptr;
    Gdiplus::Graphics g(image.get());
    g.DrawImage(&file, Gdiplus::Rect(0, 0, width, height), 0, 0, width, height, Gdiplus::UnitPixel);
    return image;
}

}  // namespace

EmbeddedContents::EmbeddedContents(const CString& name, std::vector<BYTE> data, std::vector<BYTE> picture)
    : m_name(name.Left(kLongestName)), m_data(std::move(data)), m_picture(std::move(picture)) {}

EmbeddedContents::~EmbeddedContents() = default;

Bitmap* EmbeddedContents::Image() const {
    if (!m_decoded && !m_picture.empty())
        m_image = Decode(m_picture);
    m_decoded = true;
    return m_image.get();
}

bool EmbeddedContents::operator==(const EmbeddedContents& other) const {
    return m_name == other.m_name && m_data == other.m_data && m_picture == other.m_picture;
}

void EmbeddedContents::Store(CArchive& ar) const {
    ar << m_name;
    StoreBytes(ar, m_data);
    StoreBytes(ar, m_picture);
}

std::shared_ptr<const EmbeddedContents> EmbeddedContents::Load(CArchive& ar) {
    CString name;
    ar >> name;
    std::vector<BYTE> data = LoadBytes(ar);
    std::vector<BYTE> picture = LoadBytes(ar);
    Require(name.GetLength() <= kLongestName && (picture.empty() || IsPicture(picture)));
    return std::make_shared<const EmbeddedContents>(name, std::move(data), std::move(picture));
}

}  // namespace Studio
