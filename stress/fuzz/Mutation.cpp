#include "Mutation.h"

#include <algorithm>
#include <cstring>
#include <iterator>

Random::Random(uint64_t seed, std::string_view loader, uint64_t number) : m_state(seed) {
    for (char letter : loader)
        m_state = (m_state ^ static_cast<BYTE>(letter)) * 0x100000001B3u;
    m_state += number * 0xD1342543DE82EF95u;
    Next();
}

uint64_t Random::Next() {
    uint64_t value = m_state += 0x9E3779B97F4A7C15u;
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9u;
    value = (value ^ value >> 27) * 0x94D049BB133111EBu;
    return value ^ value >> 31;
}

namespace {

// Numbers at which lengths, counts, kinds and floats turn.
constexpr DWORD kNumbers[] = {
    0,          1,          2,          3,          13,         14,         15,         18,
    19,         20,         28,         29,         63,         64,         65,         127,
    128,        254,        255,        256,        999,        1000,       1001,       4096,
    0x7FFF,     0x8000,     0xFF01,     0xFF03,     0xFFFE,     0xFFFF,     0x10000,    0x10001,
    0xFFFFFF,   0x10000000, 0x10000001, 0x3FFFFFFF, 0x40000000, 0x7FFFFFFE, 0x7FFFFFFF, 0x80000000,
    0x80000001, 0xFFFFFFFE, 0xFFFFFFFF,
    0x7F800000,  // infinity
    0xFF800000,  // minus infinity
    0x7FC00000,  // not a number
    0x7F7FFFFF,  // the largest float
    0x00000001,  // the smallest one
    0x49742400,  // a million
    0x49742410,  // a little more
    0x4F000000,  // 2 to the power of 31
    0x33D6BF95,  // 1.0e-7
    0xBF800000,  // -1
};

constexpr BYTE kStringMark[] = {0xFF, 0xFE, 0xFF};

// A length as it stands before the letters of a text, of every form.
Bytes StringHead(Random& random) {
    const DWORD length =
        random.OneIn(3) ? static_cast<DWORD>(random.Below(300)) : kNumbers[random.Below(std::size(kNumbers))];
    Bytes head;
    if (!random.OneIn(4))
        head.assign(std::begin(kStringMark), std::end(kStringMark));
    const int form = static_cast<int>(random.Below(4));
    const auto put = [&](uint64_t value, size_t size) {
        for (size_t i = 0; i < size; ++i)
            head.push_back(static_cast<BYTE>(value >> 8 * i));
    };
    if (form == 0) {
        put(length, 1);
        return head;
    }
    put(0xFF, 1);
    put(form == 1 ? length : 0xFFFF, 2);
    if (form >= 2)
        put(form == 2 ? length : 0xFFFFFFFF, 4);
    if (form == 3)
        put(length | random.Next() << 32, 8);
    return head;
}

void ReplaceAt(Bytes& bytes, size_t at, size_t size, const BYTE* with, size_t length) {
    if (bytes.size() - size + length > kLongestInput)
        return;
    const auto from = bytes.erase(bytes.begin() + at, bytes.begin() + at + size);
    bytes.insert(from, with, with + length);
}

// The beginnings of texts.
void MutateString(Bytes& bytes, Random& random) {
    std::vector<size_t> places;
    for (auto at = bytes.begin();; ++at) {
        at = std::search(at, bytes.end(), std::begin(kStringMark), std::end(kStringMark));
        if (bytes.end() - at < 4)
            break;
        places.push_back(at - bytes.begin());
    }
    if (places.empty())
        return;
    const size_t at = places[random.Below(places.size())];
    const Bytes head = StringHead(random);
    ReplaceAt(bytes, at, random.OneIn(3) ? 4 + std::min(size_t{bytes[at + 3]} * 2, bytes.size() - at - 4) : 4,
              head.data(), head.size());
}

void MutateNumber(Bytes& bytes, Random& random) {
    const size_t size = std::min<size_t>(size_t(1) << random.Below(4), bytes.size());
    const size_t at = random.Below(bytes.size() - size + 1);
    uint64_t value = 0;
    std::memcpy(&value, &bytes[at], size);
    if (random.OneIn(3))
        value += random.Below(5) - 2;
    else
        value = kNumbers[random.Below(std::size(kNumbers))] | (random.OneIn(2) ? ~uint64_t(0) << 32 : 0);
    std::memcpy(&bytes[at], &value, size);
}

struct Block {
    size_t at, size;
};

Block AnyBlock(const Bytes& bytes, Random& random) {
    const size_t at = random.Below(bytes.size());
    const size_t left = bytes.size() - at;
    return {at, 1 + random.Below(random.OneIn(2) ? std::min<size_t>(left, 16) : left)};
}

void Repeat(Bytes& bytes, Random& random) {
    const auto [at, size] = AnyBlock(bytes, random);
    const size_t times = random.OneIn(8) ? 1 + random.Below(300) : 1;
    Bytes block;
    for (size_t i = 0; i < times && block.size() + size < kLongestInput / 4; ++i)
        block.insert(block.end(), bytes.begin() + at, bytes.begin() + at + size);
    ReplaceAt(bytes, at, 0, block.data(), block.size());
}

void Splice(Bytes& bytes, const Bytes& other, Random& random) {
    if (other.empty())
        return;
    const Block from = AnyBlock(other, random);
    const bool aligned = random.OneIn(2) && from.at < bytes.size();
    const size_t at = aligned ? from.at : random.Below(bytes.size());
    const size_t size = random.OneIn(2) ? std::min(from.size, bytes.size() - at) : 0;
    ReplaceAt(bytes, at, size, &other[from.at], from.size);
}

void Change(Bytes& bytes, const std::vector<Bytes>& seeds, Random& random) {
    if (bytes.empty()) {
        bytes.resize(random.Below(16), static_cast<BYTE>(random.Next()));
        return;
    }
    const size_t at = random.Below(bytes.size());
    switch (random.Below(12)) {
        case 0:
            bytes[at] ^= 1u << random.Below(8);
            break;
        case 1:
            bytes[at] = static_cast<BYTE>(random.Next());
            break;
        case 2:
            bytes.resize(at);
            break;
        case 3: {
            const auto [from, size] = AnyBlock(bytes, random);
            ReplaceAt(bytes, from, size, nullptr, 0);
            break;
        }
        case 4:
            Repeat(bytes, random);
            break;
        case 5:
            Splice(bytes, seeds[random.Below(seeds.size())], random);
            break;
        case 6:
        case 7:
            MutateString(bytes, random);
            break;
        default:
            MutateNumber(bytes, random);
    }
}

}  // namespace

Bytes Mutate(const std::vector<Bytes>& seeds, Random& random) {
    // Small seeds are tried more often: they are quick, and a change finds their few numbers.
    const Bytes& one = seeds[random.Below(seeds.size())];
    const Bytes& other = seeds[random.Below(seeds.size())];
    Bytes bytes = one.size() < other.size() ? one : other;
    // Most inputs are wrong in one place only: those get furthest into a loader.
    const size_t changes = random.OneIn(64) ? 0 : random.OneIn(3) ? 2 + random.Below(6) : 1;
    for (size_t i = 0; i < changes; ++i)
        Change(bytes, seeds, random);
    return bytes;
}
