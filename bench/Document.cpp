// Making, naming, storing and loading many objects.
#include "bench/Memory.h"
#include "bench/Page.h"
#include "bench/Table.h"

using namespace Lumo;

namespace bench {

namespace {

void MeasureMaking(std::vector<Line>& lines) {
    constexpr int kObjects = 10000;
    std::vector<double> seconds;
    for (int round = 0; round < 3; ++round) {
        Page page(400, 300);
        seconds.push_back(Seconds([&] {
            for (int i = 0; i < kObjects; ++i)
                page.document->SetShapeName(page.Add(DS_RECTANGLE, static_cast<float>(i), 0, 10, 10));
        }));
    }
    lines.push_back(
        {"create, append and name 10,000 objects one by one", Median(seconds), "s", 0.5, false, ""});
}

void MeasureMemory(std::vector<Line>& lines) {
    constexpr int kObjects = 100000;
    Page page(400, 300);
    const size_t before = PrivateBytes();
    for (int i = 0; i < kObjects; ++i)
        page.Add(DS_RECTANGLE, static_cast<float>(i), 0, 10, 10);
    lines.push_back({"a default rectangle object in memory, strings and list entry included",
                     static_cast<double>(PrivateBytes() - before) / kObjects, "bytes", 640, false, ""});
}

CString TemporaryPath() {
    wchar_t folder[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    CString path;
    path.Format(L"%sbench-%u.cbf", folder, ::GetCurrentProcessId());
    return path;
}

constexpr int kBuffer = 65536;

// The page's objects are there already, so that loading reads into them, as a host's document has it.
void Transfer(CUIDocument& document, const CString& path, UINT fileMode, UINT archiveMode) {
    CFile file(path, fileMode);
    CArchive ar(&file, archiveMode, kBuffer);
    document.Serialize(ar);
    ar.Close();
}

void MeasureArchive(std::vector<Line>& lines) {
    constexpr int kObjects = 100000;
    const CString path = TemporaryPath();
    Page page(400, 300);
    for (int i = 0; i < kObjects; ++i)
        page.Add(DS_RECTANGLE, static_cast<float>(i), 0, 10, 10);
    const UINT create = CFile::modeCreate | CFile::modeReadWrite;
    Transfer(*page.document, path, create, CArchive::store);
    std::vector<BYTE> raw;
    {
        CFile file(path, CFile::modeRead);
        raw.resize(static_cast<size_t>(file.GetLength()));
    }
    const UINT size = static_cast<UINT>(raw.size());
    const Pair load = SideBySide(
        5, [&] { Transfer(*page.document, path, CFile::modeRead, CArchive::load); },
        [&] { CFile(path, CFile::modeRead).Read(raw.data(), size); });
    const Pair save = SideBySide(
        5, [&] { Transfer(*page.document, path, create, CArchive::store); },
        [&] { CFile(path, create).Write(raw.data(), size); });
    const auto detail = [&](double seconds) {
        return std::to_string(static_cast<int>(size / seconds / 1e6)) + " MB/s, 64 KB buffer";
    };
    lines.push_back({"save 100,000 objects, speed against one raw write", save.other / save.ours, "x", 0.25,
                     true, detail(save.ours)});
    lines.push_back({"load 100,000 objects, speed against one raw read", load.other / load.ours, "x", 0.25,
                     true, detail(load.ours)});
    CFile::Remove(path);
}

}  // namespace

void MeasureDocument(std::vector<Line>& lines) {
    MeasureMaking(lines);
    MeasureMemory(lines);
    MeasureArchive(lines);
}

}  // namespace bench
