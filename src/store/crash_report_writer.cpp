#include "store/crash_report_writer.h"

#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace zelvor {

namespace {

constexpr std::size_t digitRoom = 24;
using Digits = std::array<char, digitRoom>;
using Name = std::array<char, 64>;

// The digits of a number, written from the end of the place.
const char* digitsOf(std::uintptr_t number, unsigned base, Digits& place)
{
    std::size_t at = place.size() - 1;
    place[at] = '\0';
    do {
        place[--at] = "0123456789abcdef"[number % base];
        number /= base;
    } while (number != 0);
    return &place[at];
}

// One line of the list of what the process has in its memory:
// "start-end rwxp offset device inode      /path/of/the/file".
struct Mapping {
    std::uintptr_t start = 0;
    std::uintptr_t end = 0;
    std::uintptr_t offset = 0;
    std::uintptr_t inode = 0;
    bool isCode = false;
    Name name{}; // without the folders
};

// Reads the list by single characters: a line may be of any length, and there is nowhere to keep it.
class MappingReader {
public:
    MappingReader() : m_file(::open("/proc/self/maps", O_RDONLY | O_CLOEXEC)) {}
    ~MappingReader()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    MappingReader(const MappingReader&) = delete;
    MappingReader& operator=(const MappingReader&) = delete;

    bool next(Mapping& mapping)
    {
        mapping = {};
        mapping.start = number(16);
        mapping.end = number(16);
        skip(2);
        mapping.isCode = take() == 'x';
        skip(2);
        mapping.offset = number(16);
        number(16);
        number(16);
        mapping.inode = number(10);
        name(mapping.name);
        return m_character != ended;
    }

private:
    static constexpr int ended = -1;

    int take()
    {
        if (m_at == m_filled) {
            const ssize_t count = m_file < 0 ? 0 : ::read(m_file, m_buffer.data(), m_buffer.size());
            m_filled = count > 0 ? static_cast<std::size_t>(count) : 0;
            m_at = 0;
        }
        m_character = m_filled == 0 ? ended : static_cast<unsigned char>(m_buffer[m_at++]);
        return m_character;
    }
    void skip(int count)
    {
        while (count-- > 0)
            take();
    }
    // The digits up to the sign that ends them, and that sign.
    std::uintptr_t number(unsigned base)
    {
        std::uintptr_t value = 0;
        for (;;) {
            const int c = take();
            if (c >= '0' && c <= '9')
                value = value * base + static_cast<unsigned>(c - '0');
            else if (c >= 'a' && c <= 'f')
                value = value * base + static_cast<unsigned>(c - 'a' + 10);
            else
                return value;
        }
    }
    void name(Name& place)
    {
        std::size_t used = 0;
        while (m_character != '\n' && m_character != ended && take() != '\n' && m_character != ended) {
            if (m_character == '/')
                used = 0;
            else if (m_character != ' ' && used + 1 < place.size())
                place[used++] = static_cast<char>(m_character);
        }
        place[used] = '\0';
    }

    int m_file;
    std::array<char, 1024> m_buffer{};
    std::size_t m_at = 0;
    std::size_t m_filled = 0;
    int m_character = 0;
};

struct Place {
    Name module{};
    std::uintptr_t offset = 0;
};
using Places = std::array<Place, mostFrames + 1>;

// A file's name may be a user's own word; a library's is not.
void nameModule(Place& place, const Mapping& mapping, bool isProgram, const char* programName)
{
    if (isProgram)
        std::strncpy(place.module.data(), programName, place.module.size() - 1);
    else if (std::strncmp(mapping.name.data(), "lib", 3) == 0 ||
             std::strncmp(mapping.name.data(), "ld-", 3) == 0)
        place.module = mapping.name;
}

void findPlaces(const StackAddresses& stack, Places& places, std::uintptr_t programBase,
                const char* programName)
{
    MappingReader reader;
    Mapping mapping;
    std::uintptr_t base = 0;
    std::uintptr_t inode = 0;
    while (reader.next(mapping)) {
        if (mapping.offset == 0) { // a module begins
            base = mapping.start;
            inode = mapping.inode;
        }
        if (!mapping.isCode || inode == 0 || mapping.inode != inode)
            continue;
        for (std::size_t i = 0; i < stack.count; ++i) {
            const std::uintptr_t address = stack.addresses[i];
            if (address < mapping.start || address >= mapping.end)
                continue;
            nameModule(places[i], mapping, base == programBase, programName);
            places[i].offset = address - base;
        }
    }
}

} // namespace

void FixedText::text(const char* text)
{
    for (; *text != '\0' && m_used + 1 < m_size; ++text)
        m_place[m_used++] = *text;
    m_place[m_used] = '\0';
}

void FixedText::decimal(std::uintptr_t number)
{
    Digits digits;
    text(digitsOf(number, 10, digits));
}

void CrashReportWriter::text(const char* text)
{
    for (; *text != '\0'; ++text) {
        if (m_used == m_buffer.size())
            flush();
        m_buffer[m_used++] = *text;
    }
}

void CrashReportWriter::decimal(std::uintptr_t number)
{
    Digits digits;
    text(digitsOf(number, 10, digits));
}

void CrashReportWriter::hexadecimal(std::uintptr_t number)
{
    Digits digits;
    text("0x");
    text(digitsOf(number, 16, digits));
}

void CrashReportWriter::stack(const StackAddresses& stack, std::uintptr_t programBase,
                              const char* programName)
{
    Places places{};
    findPlaces(stack, places, programBase, programName);
    for (std::size_t i = 0; i < stack.count; ++i) {
        decimal(i);
        text(" ");
        if (places[i].module[0] == '\0') {
            text("?\n");
            continue;
        }
        text(places[i].module.data());
        text(" + ");
        hexadecimal(places[i].offset);
        text("\n");
    }
}

void CrashReportWriter::flush()
{
    std::size_t written = 0;
    while (written < m_used) {
        const ssize_t count = ::write(m_file, m_buffer.data() + written, m_used - written);
        if (count <= 0)
            break;
        written += static_cast<std::size_t>(count);
    }
    m_used = 0;
}

} // namespace zelvor
