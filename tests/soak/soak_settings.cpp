// The long runs of the settings: kills at random moments of writes, and a fault at every system call of one write in
// turn. Each run checks that the file is wholly the old or the new one, that the next start reads it, and that no other
// file stays behind. `soak_settings [KILLS]`
#include "lcdconfig.h"
#include "lcdlanguageconfig.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <random>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

// Only there where branches are counted: a process that ends without its destructors has to leave its counts behind.
extern "C" [[gnu::weak]] int __llvm_profile_write_file();

namespace {

// A fault is one of three kinds; a short write is one where the storage takes half, and nothing after it.
enum class Fault { NoSpace, InputOutput, Short };
constexpr const char* FAULT_NAMES[] = {"ENOSPC", "EIO", "short write"};

bool isArmed = false;
Fault fault = Fault::NoSpace;
long long callsToGo = 0; // to the call that fails
bool isFull = false;

/// Whether this call is the one that fails.
bool fails()
{
    if (!isArmed || callsToGo-- != 0) return false;
    errno = fault == Fault::InputOutput ? EIO : ENOSPC;
    return true;
}

template <class Function> Function real(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

// The program's own functions come before those of the C library, for Qt too.
extern "C" {

int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const int mode = va_arg(more, int);
    va_end(more);
    return fails() ? -1 : real(&open, "open")(path, flags, mode);
}
int open64(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const int mode = va_arg(more, int);
    va_end(more);
    return fails() ? -1 : real(&open64, "open64")(path, flags, mode);
}
ssize_t pwrite(int file, const void* bytes, size_t count, off_t at)
{
    const auto write = real(&pwrite, "pwrite");
    if (isFull) {
        errno = ENOSPC;
        return -1;
    }
    if (!fails()) return write(file, bytes, count, at);
    if (fault != Fault::Short) return -1;
    isFull = true;
    return write(file, bytes, count / 2, at);
}
ssize_t pread(int file, void* bytes, size_t count, off_t at)
{
    return fails() ? -1 : real(&pread, "pread")(file, bytes, count, at);
}
ssize_t read(int file, void* bytes, size_t count) { return fails() ? -1 : real(&read, "read")(file, bytes, count); }
int fstat(int file, struct stat* found) { return fails() ? -1 : real(&fstat, "fstat")(file, found); }
int stat(const char* path, struct stat* found) { return fails() ? -1 : real(&stat, "stat")(path, found); }
int lstat(const char* path, struct stat* found) { return fails() ? -1 : real(&lstat, "lstat")(path, found); }
int ftruncate(int file, off_t size) { return fails() ? -1 : real(&ftruncate, "ftruncate")(file, size); }
int fsync(int file) { return fails() ? -1 : real(&fsync, "fsync")(file); }
int flock(int file, int how) { return fails() ? -1 : real(&flock, "flock")(file, how); }
int fchmod(int file, mode_t mode) { return fails() ? -1 : real(&fchmod, "fchmod")(file, mode); }
int fchown(int file, uid_t user, gid_t group) { return fails() ? -1 : real(&fchown, "fchown")(file, user, group); }
int futimens(int file, const timespec* times) { return fails() ? -1 : real(&futimens, "futimens")(file, times); }
/// The flush of all storage is not what is looked at, and takes its time.
int system(const char* /*command*/) { return 0; }
int rename(const char* from, const char* to) { return fails() ? -1 : real(&rename, "rename")(from, to); }
int unlink(const char* path) { return fails() ? -1 : real(&unlink, "unlink")(path); }
int memfd_create(const char* name, unsigned flags)
{
    return fails() ? -1 : real(&memfd_create, "memfd_create")(name, flags);
}
int faccessat(int folder, const char* path, int mode, int flags)
{
    return fails() ? -1 : real(&faccessat, "faccessat")(folder, path, mode, flags);
}

} // extern "C"

namespace {

using namespace LCD::MainConfigImpl;

[[noreturn]] void giveUp(const QString& why)
{
    fprintf(stderr, "%s\n", qPrintable(why));
    exit(1);
}

QByteArray bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) giveUp("cannot write " + path);
}

/// A file whose first entry is the number, and its check.
QByteArray generation(int n)
{
    return "[FnSetting]\nFnValue0=" + QByteArray::number(n) + "\n\n[Z]\nfill=" + QByteArray(2000, 'z') + '\n';
}

int numberIn(const QByteArray& text)
{
    const int n = text.split('\n').value(1).mid(int(strlen("FnValue0="))).toInt();
    return text == generation(n) ? n : -1;
}

/// Both components have setFnSettingValue and getFnSettingValue.
template <class Work> auto withComponent(bool isUser, const QString& folder, const Work& work)
{
    if (isUser) {
        LcdLanguageConfig config(folder + "/lcdsetting.ini");
        if (!config.readConfig()) giveUp("not read");
        return work(config);
    }
    LcdConfig config;
    if (!config.readConfig(folder)) giveUp("not read");
    return work(config);
}

/// Writes until it is killed; tells the number of each write that has returned.
[[noreturn]] void writeOn(bool isUser, const QString& folder, volatile int* returned)
{
    withComponent(isUser, folder, [&](auto& config) {
        for (int n = config.getFnSettingValue(0) + 1;; ++n) {
            config.setFnSettingValue(0, n);
            *returned = n;
        }
        return 0;
    });
    _exit(0);
}

void checkRest(const QString& folder, const QString& when)
{
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    if (names != QStringList("lcdsetting.ini")) giveUp("left behind " + when + ": " + names.join(' '));
}

void kill(int kills)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("lcdsetting.ini");
    auto* const returned =
        static_cast<volatile int*>(mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::mt19937 random(1);
    std::uniform_int_distribution<int> moments(0, 3000);
    write(file, generation(0));
    int amidAWrite = 0;
    *returned = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const int before = *returned;
        const pid_t child = fork();
        if (child == 0) writeOn(kill % 2 == 0, folder.path(), returned);
        for (int waited = 0; *returned == before && waited < 100000; ++waited) usleep(100);
        usleep(useconds_t(moments(random)));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const int stored = numberIn(bytes(file));
        // What has returned is there; what has not may be.
        if (*returned == before || stored < *returned || stored > *returned + 1)
            giveUp(QString("kill %1: %2 was written, %3 is stored").arg(kill).arg(*returned).arg(stored));
        amidAWrite += QFile::exists(file + ".lock");
        *returned = stored;
    }
    usleep(600000);
    withComponent(true, folder.path(), [](auto& config) { return config.getFnSettingValue(0); });
    checkRest(folder.path(), "by the kills");
    printf("%d kills, %d of them amid a write: every file whole, no value lost, nothing left behind\n", kills,
           amidAWrite);
}

/// One write with the call failing that comes after so many. False: the write was over before.
bool failOnce(bool isUser, Fault kind, int call, std::map<QString, int>& outcomes)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("lcdsetting.ini");
    write(file, generation(3));
    const pid_t child = fork();
    if (child == 0) {
        // No destructors: the process ends as by a kill, with nothing tried again.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        withComponent(isUser, folder.path(), [&](auto& config) {
            fault = kind;
            callsToGo = call;
            isArmed = true;
            config.setFnSettingValue(0, 4);
            isArmed = false;
            if (__llvm_profile_write_file) __llvm_profile_write_file();
            _exit(callsToGo >= 0 ? 77 : config.getFnSettingValue(0) == 4 ? 0 : 1);
            return 0;
        });
    }
    int status = 0;
    waitpid(child, &status, 0);
    const QString when = QString("by %1 at call %2").arg(FAULT_NAMES[int(kind)]).arg(call);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77) return false;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) giveUp("value lost " + when);
    const int stored = numberIn(bytes(file));
    if (stored != 3 && stored != 4) giveUp("torn " + when);
    ++outcomes[stored == 3 ? "old" : "new"];
    // An empty lock needs its time to be nobody's.
    if (QFileInfo(file + ".lock").size() == 0 && QFile::exists(file + ".lock")) usleep(600000);
    const int next = withComponent(!isUser, folder.path(), [](auto& config) { return config.getFnSettingValue(0); });
    if (next != stored) giveUp("unread " + when);
    checkRest(folder.path(), when);
    return true;
}

void failEveryCall()
{
    for (const Fault kind : {Fault::NoSpace, Fault::InputOutput, Fault::Short})
        for (const bool isUser : {false, true}) {
            std::map<QString, int> outcomes;
            int calls = 0;
            while (failOnce(isUser, kind, calls, outcomes)) ++calls;
            printf(
                "%s at each of the %d calls of a write (%s): %d times the old file, %d times the new one, none torn\n",
                FAULT_NAMES[int(kind)], calls, isUser ? "user" : "factory", outcomes["old"], outcomes["new"]);
        }
}

} // namespace

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    setvbuf(stdout, nullptr, _IOLBF, 0);
    failEveryCall();
    kill(count > 1 ? atoi(arguments[1]) : 10000);
    return 0;
}
