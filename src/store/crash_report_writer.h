#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zelvor {

// Text in a place of fixed size; what does not fit is left out. Everything in this file may be called in a
// signal's handler.
class FixedText {
public:
    FixedText(char* place, std::size_t size) : m_place(place), m_size(size) {}
    void text(const char* text);
    void decimal(std::uintptr_t number);

private:
    char* m_place; // always ends with 0
    std::size_t m_size;
    std::size_t m_used = 0;
};

inline constexpr std::size_t mostFrames = 64;

// The addresses of a stack, the innermost first.
struct StackAddresses {
    std::array<std::uintptr_t, mostFrames + 1> addresses{};
    std::size_t count = 0;
    void add(std::uintptr_t address)
    {
        if (count < addresses.size())
            addresses[count++] = address;
    }
};

// Writes the report of a crash to an open file.
class CrashReportWriter {
public:
    explicit CrashReportWriter(int file) : m_file(file) {}
    void text(const char* text);
    void decimal(std::uintptr_t number);
    void hexadecimal(std::uintptr_t number);
    // A line for each address: its number, the module's file name, the place in the module. The program goes
    // by the name it is given; what lies in no shared library is "?".
    void stack(const StackAddresses& stack, std::uintptr_t programBase, const char* programName);
    void flush();

private:
    int m_file;
    std::array<char, 1024> m_buffer{};
    std::size_t m_used = 0;
};

} // namespace zelvor
