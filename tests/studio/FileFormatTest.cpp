// The file that docs/file-format.md shows and explains byte by byte is the file that Studio writes.
#include "core/UIObjectPoly.h"
#include "studio/document/PageContents.h"
#include "support/TemporaryFile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>

using namespace Studio;

namespace {

// One page with one line, as the document says.
DocumentContents DescribedContents() {
    ObjectPtr line = MakeObject(ObjectClass::kLine);
    auto& points = dynamic_cast<Lumo::CUIObjectPoly&>(*line);
    Gdiplus::PointF from(10.0f, 20.0f), to(110.0f, 70.0f);
    points.AddPoint(from);
    points.AddPoint(to);
    line->SetShapeName(L"Line1");
    DocumentContents contents;
    contents.pages.emplace_back();
    contents.pages.front().name = L"Main";
    contents.pages.front().objects.push_back(std::move(line));
    return contents;
}

// As xxd prints it.
std::string Dump(const std::string& bytes) {
    std::ostringstream dump;
    char hex[16];
    for (size_t at = 0; at < bytes.size(); at += 16) {
        std::snprintf(hex, sizeof hex, "%08x:", static_cast<unsigned>(at));
        dump << hex;
        std::string letters;
        for (size_t i = at; i < at + 16; ++i) {
            if (i % 2 == 0)
                dump << ' ';
            if (i < bytes.size()) {
                const auto byte = static_cast<unsigned char>(bytes[i]);
                std::snprintf(hex, sizeof hex, "%02x", byte);
                dump << hex;
                letters += byte >= 0x20 && byte < 0x7F ? static_cast<char>(byte) : '.';
            } else {
                dump << "  ";
            }
        }
        // An editor would take spaces at the end of a line away.
        letters.erase(letters.find_last_not_of(' ') + 1);
        dump << "  " << letters << '\n';
    }
    return dump.str();
}

// The hexadecimal digits of a text as bytes.
std::string BytesOf(const std::string& hex) {
    std::string bytes, digits;
    for (const char c : hex)
        if (std::isxdigit(static_cast<unsigned char>(c))) {
            digits += c;
            if (digits.size() == 2) {
                bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
                digits.clear();
            }
        }
    return bytes;
}

}  // namespace

TEST(FileFormat, DocumentedFileIsTheOneThatIsWritten) {
    const TemporaryFile file;
    WriteContents(DescribedContents(), file.Path());
    const std::string written = file.Read();
    const std::string dump = Dump(written);

    std::ifstream document(TESSEL_FILE_FORMAT);
    ASSERT_TRUE(document) << TESSEL_FILE_FORMAT;
    const std::regex dumpLine("[0-9a-f]{8}: .*"), tableLine(R"(\| `([0-9a-f]{4})` \| `([0-9a-f ]+)` \|.*)");
    std::string line, shown, explained;
    std::smatch parts;
    while (std::getline(document, line)) {
        if (std::regex_match(line, dumpLine)) {
            shown += line + '\n';
        } else if (std::regex_match(line, parts, tableLine)) {
            EXPECT_EQ(explained.size(), static_cast<size_t>(std::stoi(parts[1], nullptr, 16))) << line;
            explained += BytesOf(parts[2]);
        }
    }
    EXPECT_EQ(shown, dump);
    EXPECT_EQ(Dump(explained), dump);
}
