// In zelvor-cli: the program beside it draws.

#include "cli/command.h"
#include "cli/pages.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// In the folder of this program, where it was built; below libexec where it was installed. A link that leads
// to this program does not matter.
std::filesystem::path pagesProgram()
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    const std::filesystem::path built = folder / "zelvor-cli-pages";
    return std::filesystem::exists(built, error) ? built
                                                 : (folder / ZELVOR_PAGES_FROM_BIN).lexically_normal();
}

// The words of this program's own call, byte for byte.
std::vector<std::string> ownCall()
{
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    std::vector<std::string> words;
    for (std::string word; std::getline(file, word, '\0');)
        words.push_back(word);
    return words;
}

// Answers only when there is nobody to give way to.
int giveWay()
{
    const std::filesystem::path program = pagesProgram();
    std::vector<std::string> words = ownCall();
    std::vector<char*> call;
    for (std::string& word : words)
        call.push_back(word.data());
    call.push_back(nullptr);
    ::execv(program.c_str(), call.data());
    const QString reason = QString::fromLocal8Bit(std::strerror(errno));
    return badUsage(u"cannot draw pages: "_s + QString::fromStdString(program.string()) + u": "_s + reason);
}

} // namespace

int printReportForm(const Report&, const Arguments&)
{
    return giveWay();
}

int printInvoice(const QString&, qint64, const QString&)
{
    return giveWay();
}

} // namespace zelvor
