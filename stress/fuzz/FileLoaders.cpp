// Files: Studio's pages, symbols and reports, its document with its windows, its clipboard, and settings
// files.
#include "Loader.h"

#include "Exercise.h"
#include "Samples.h"
#include "Scratch.h"
#include "StudioHost.h"

#include "studio/document/Checksum.h"
#include "studio/document/FileReport.h"
#include "studio/document/PageFile.h"
#include "studio/document/SymbolLibrary.h"

#include <Ini.h>

#include <cstring>
#include <iterator>

using namespace Studio;

namespace {

constexpr size_t kLengthAt = 16, kChecksumAt = 12, kHeader = 24;

// Most files get a header that fits their contents, or nothing would come past it.
void Seal(Bytes& input) {
    if (input.size() < kHeader || input.back() % 8 == 0)
        return;
    const DWORD checksum = UpdateChecksum(0, input.data() + kHeader, input.size() - kHeader);
    const ULONGLONG length = input.size() - kHeader;
    std::memcpy(&input[kChecksumAt], &checksum, sizeof checksum);
    std::memcpy(&input[kLengthAt], &length, sizeof length);
}

bool LoadFile(const Bytes& input, bool use) {
    const CString path = WriteScratch(input);
    DocumentContents contents;
    CString reason;
    const bool loaded = AttemptFile([&] { contents = LoadContents(path); }, reason);
    Require(loaded == reason.IsEmpty(), "a refusal without a reason, or a reason without one");
    const FileReport report = ReportFile(path);
    Require(report.sound == loaded && !report.text.IsEmpty(), "the report says otherwise");
    ObjectPtr symbol;
    const bool placed = AttemptFile([&] { symbol = LoadSymbol(path); }, reason);
    Require(placed == (loaded && !contents.pages.front().objects.empty()),
            "the symbol and its file disagree");
    if (placed && use)
        Exercise(*symbol);
    if (!loaded)
        return false;
    RequireSound(contents);
    WriteContents(contents, path);
    Require(ArchivedContents(LoadContents(path)) == ArchivedContents(contents),
            "what was saved comes back changed");
    return true;
}

std::vector<Bytes> FileSeeds() {
    std::vector<Bytes> seeds;
    for (const DocumentContents& contents : SampleDocuments()) {
        WriteContents(contents, WriteScratch({}));
        seeds.push_back(ReadScratch());
    }
    return seeds;
}

bool LoadDocument(const Bytes& input, bool use) {
    return StudioHost::Get().LoadFile(WriteScratch(input), input.size() % 2 != 0, use);
}

bool PasteClipboard(const Bytes& input, bool) {
    return StudioHost::Get().Paste(input);
}

constexpr struct {
    LPCWSTR section, key;
} kSettings[] = {
    {L"window", L"width"}, {L"window", L"title"}, {L"\xC124\xC815", L"\xAE00"}, {L"last", L"gain"}};

std::vector<CString> ReadSettings(const CIni& ini) {
    std::vector<CString> values;
    for (const auto& [section, key] : kSettings)
        values.push_back(ini.GetString(section, key, L"(none)"));
    return values;
}

bool LoadSettings(const Bytes& input, bool) {
    CIni ini(WriteScratch(input));
    std::vector<CString> before = ReadSettings(ini);
    ini.GetInt(L"window", L"width", 7);
    ini.GetFloat(L"last", L"gain", 0.5f);
    const size_t changed = input.size() % std::size(kSettings);
    const auto& [section, key] = kSettings[changed];
    if (!ini.SetString(section, key, L" 'value' ")) {
        Require(ReadScratch() == input, "a setting that was refused changed the file");
        return false;
    }
    before[changed] = L" 'value' ";
    Require(ReadSettings(ini) == before, "a setting was not kept, or took another with it");
    return true;
}

std::vector<Bytes> SettingSeeds() {
    const std::string text =
        "; of the program\r\n[window]\r\nwidth = 640\r\ntitle=\" a title "
        "\"\r\n\r\n[other]\r\nkey=1\r\n[last]\r\n"
        "gain=-1.5e3\r\n";
    Bytes utf8(text.begin(), text.end());
    Bytes marked = {0xEF, 0xBB, 0xBF};
    marked.insert(marked.end(), utf8.begin(), utf8.end());
    CString wide(L"\xFEFF[\xC124\xC815]\r\n\xAE00=\xAC12\r\n[window]\nwidth=3\n");
    const auto* raw = reinterpret_cast<const BYTE*>(wide.GetString());
    return {utf8, marked, Bytes(raw, raw + wide.GetLength() * sizeof(WCHAR)), {}};
}

}  // namespace

void AddFileLoaders(std::vector<Loader>& loaders) {
    loaders.push_back({"studio-file", 8, FileSeeds(), LoadFile, Seal});
    loaders.push_back({"studio-document", 5, FileSeeds(), LoadDocument, Seal});
    std::vector<Bytes> seeds;
    for (const Loader& loader : loaders) {
        if (loader.name == "studio-clipboard")
            seeds = loader.seeds;
    }
    loaders.push_back({"studio-paste", 2, seeds, PasteClipboard});
    loaders.push_back({"settings-file", 8, SettingSeeds(), LoadSettings});
}

const std::vector<Loader>& Loaders() {
    static const std::vector<Loader> loaders = [] {
        std::vector<Loader> made;
        AddLibraryLoaders(made);
        AddPreferenceLoaders(made);
        AddStudioLoaders(made);
        AddFileLoaders(made);
        return made;
    }();
    return loaders;
}
