#include "store/crash_handler.h"

#include "store/crash_report_writer.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <execinfo.h>
#include <fcntl.h>
#include <link.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <ucontext.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int keptReports = 10;
constexpr std::size_t stackSize = 128 * 1024;

struct CrashSignal {
    int number;
    const char* name;
};
constexpr std::array<CrashSignal, 5> crashSignals{
    {{SIGSEGV, "SIGSEGV"}, {SIGABRT, "SIGABRT"}, {SIGBUS, "SIGBUS"}, {SIGFPE, "SIGFPE"}, {SIGILL, "SIGILL"}}};

// All that the handler needs, made before anything goes wrong: in a process that is broken no memory can be
// had and no library be called. A signal's handler reaches nothing but what lies at a fixed place.
struct Prepared {
    std::array<char, 4096> folder{};
    std::array<char, 512> head{};
    std::array<char, 64> program{};
    std::uintptr_t programBase = 0;
};
Prepared prepared;
alignas(16) std::array<char, stackSize> ownStack;

// --- at the crash: only what may be called in a signal's handler

void makeFolders()
{
    std::array<char, 4096> path = prepared.folder;
    for (std::size_t i = 1; path[i] != '\0'; ++i) {
        if (path[i] != '/')
            continue;
        path[i] = '\0';
        ::mkdir(path.data(), 0700);
        path[i] = '/';
    }
    ::mkdir(path.data(), 0700);
}

int openReport()
{
    makeFolders();
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    std::array<char, 4096 + 64> path{};
    FixedText name(path.data(), path.size());
    name.text(prepared.folder.data());
    name.text("/Zelvor_");
    name.decimal(static_cast<std::uintptr_t>(now.tv_sec));
    name.text("_");
    name.decimal(static_cast<std::uintptr_t>(::getpid()));
    name.text(".crash");
    return ::open(path.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
}

std::uintptr_t faultingInstruction(const void* context)
{
    const auto& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
    return static_cast<std::uintptr_t>(machine.gregs[REG_RIP]);
#elif defined(__aarch64__)
    return static_cast<std::uintptr_t>(machine.pc);
#else
    (void)machine;
    return 0;
#endif
}

// The stack from the instruction that failed on; the handler's own calls lie above it.
StackAddresses stackOf(const void* context)
{
    std::array<void*, mostFrames> found{};
    const int count = ::backtrace(found.data(), static_cast<int>(found.size()));
    const std::uintptr_t fault = faultingInstruction(context);
    int first = 0;
    while (first < count && reinterpret_cast<std::uintptr_t>(found[static_cast<std::size_t>(first)]) != fault)
        ++first;
    StackAddresses stack;
    if (first == count) { // the unwinder lost its way: what it has is better than nothing
        stack.add(fault);
        first = 0;
    }
    for (; first < count; ++first)
        stack.add(reinterpret_cast<std::uintptr_t>(found[static_cast<std::size_t>(first)]));
    return stack;
}

void writeReport(int signal, const void* context)
{
    const int file = openReport();
    if (file < 0)
        return;
    CrashReportWriter report(file);
    report.text(prepared.head.data());
    report.text("Signal: ");
    for (const CrashSignal& known : crashSignals) {
        if (known.number == signal)
            report.text(known.name);
    }
    report.text("\n");
    // On the disk before the stack is walked: a stack that is destroyed may end the process there.
    report.flush();
    const StackAddresses stack = stackOf(context);
    report.text("Crashed thread:\n");
    report.stack(stack, prepared.programBase, prepared.program.data());
    report.flush();
    ::close(file);
}

void handleCrash(int signal, siginfo_t*, void* context)
{
    const int before = errno;
    // Whatever goes wrong from here on ends the process.
    for (const CrashSignal& known : crashSignals)
        ::signal(known.number, SIG_DFL);
    writeReport(signal, context);
    errno = before;
    // Held back until the handler returns; the process then ends by it, with its status and its core.
    ::raise(signal);
}

// --- before

template <std::size_t Size>
bool keep(std::array<char, Size>& place, const QByteArray& text)
{
    if (text.size() >= static_cast<qsizetype>(Size) || text.contains('\0'))
        return false;
    std::memcpy(place.data(), text.constData(), static_cast<std::size_t>(text.size()) + 1);
    return true;
}

// The mark that the linker gave the program: by it the maker finds the addresses' names.
QByteArray buildIdOf(const dl_phdr_info& module)
{
    for (int i = 0; i < module.dlpi_phnum; ++i) {
        const auto& segment = module.dlpi_phdr[i];
        if (segment.p_type != PT_NOTE)
            continue;
        const char* at = reinterpret_cast<const char*>(module.dlpi_addr + segment.p_vaddr);
        const char* const end = at + segment.p_memsz;
        const auto padded = [](std::uint32_t size) { return (size + 3) & ~std::uint32_t{3}; };
        while (at + sizeof(ElfW(Nhdr)) <= end) {
            const auto* const note = reinterpret_cast<const ElfW(Nhdr)*>(at);
            const char* const content = at + sizeof(*note) + padded(note->n_namesz);
            if (note->n_type == NT_GNU_BUILD_ID)
                return QByteArray(content, static_cast<qsizetype>(note->n_descsz)).toHex();
            at = content + padded(note->n_descsz);
        }
    }
    return {};
}

// The first module of the list is the program itself.
int takeProgram(dl_phdr_info* module, std::size_t, void* buildId)
{
    prepared.programBase = module->dlpi_addr;
    *static_cast<QByteArray*>(buildId) = buildIdOf(*module);
    return 1;
}

QByteArray headOf(const QString& program, const QString& version)
{
    QByteArray buildId;
    ::dl_iterate_phdr(&takeProgram, &buildId);
    utsname system{};
    ::uname(&system);
    QByteArray head = program.toUtf8() + ' ' + version.toUtf8() + '\n';
    if (!buildId.isEmpty())
        head += "Build: " + buildId + '\n';
    head += QByteArray("Qt: ") + qVersion() + '\n';
    head += QByteArray("SQLite: ") + sqlite3_libversion() + '\n';
    head += QByteArray("System: ") + system.sysname + ' ' + system.release + ' ' + system.machine + '\n';
    return head;
}

void removeOldReports(const QString& folder)
{
    const QDir reports(folder);
    QStringList names =
        reports.entryList({crashReportPrefix.toString() + u"_*.crash"_s}, QDir::Files, QDir::Name);
    // With the seconds in the name, the order of names is the order of time.
    while (names.size() >= keptReports)
        QFile::remove(reports.filePath(names.takeFirst()));
}

// A thread whose stack has run over has no room for a handler.
void provideStack()
{
    stack_t current{};
    if (::sigaltstack(nullptr, &current) == 0 && (current.ss_flags & SS_DISABLE) == 0 &&
        current.ss_size >= stackSize / 2)
        return;
    stack_t own{};
    own.ss_sp = ownStack.data();
    own.ss_size = ownStack.size();
    ::sigaltstack(&own, nullptr);
}

void handle(int signal)
{
    struct sigaction current = {};
    if (::sigaction(signal, nullptr, &current) != 0)
        return;
    const bool isTaken = (current.sa_flags & SA_SIGINFO) != 0 ||
                         (current.sa_handler != SIG_DFL && current.sa_handler != SIG_IGN);
    if (isTaken)
        return;
    struct sigaction action = {};
    action.sa_sigaction = &handleCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

QString crashReportFolder()
{
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!state.startsWith(u'/'))
        state = QDir::homePath() + u"/.local/state"_s;
    return state + u"/Zelvor/crash-reports"_s;
}

bool installCrashHandler(const QString& program, const QString& version, const QString& folder)
{
    if (!folder.startsWith(u'/') || !keep(prepared.folder, QFile::encodeName(folder)) ||
        !keep(prepared.program, program.toUtf8()) || !keep(prepared.head, headOf(program, version)))
        return false;
    removeOldReports(folder);
    // The first walk of a stack loads a library and takes memory.
    std::array<void*, 4> warmUp{};
    ::backtrace(warmUp.data(), static_cast<int>(warmUp.size()));
    provideStack();
    for (const CrashSignal& known : crashSignals)
        handle(known.number);
    return true;
}

} // namespace zelvor
