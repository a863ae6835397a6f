// An open file of the operating system, where QFile does not tell enough or might block.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_FILEDESCRIPTOR_H
#define LCDMAINCONFIGIMPL_SETTINGS_FILEDESCRIPTOR_H

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace LCD::MainConfigImpl {

class FileDescriptor {
public:
    /// Takes what a call has opened; a negative number is no file.
    explicit FileDescriptor(int descriptor = -1) : _descriptor(descriptor) {}
    /// Opens without ever blocking; `errno` tells why it is not open.
    FileDescriptor(const QString& path, int flags, mode_t mode = 0)
        : _descriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NONBLOCK, mode))
    {}
    ~FileDescriptor()
    {
        if (isOpen()) ::close(_descriptor);
    }
    FileDescriptor(FileDescriptor&& other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(_descriptor, other._descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    [[nodiscard]] int get() const { return _descriptor; }
    [[nodiscard]] bool isOpen() const { return _descriptor >= 0; }
    /// Nothing, with `errno`, when it cannot be told.
    [[nodiscard]] std::optional<struct stat> status() const
    {
        struct stat found {};
        if (fstat(_descriptor, &found) != 0) return std::nullopt;
        return found;
    }
    /// Makes this its whole content; false, with `errno`, when some of it did not go.
    [[nodiscard]] bool write(const QByteArray& bytes) const
    {
        for (int done = 0; done < bytes.size();) {
            const ssize_t written =
                ::pwrite(_descriptor, bytes.constData() + done, std::size_t(bytes.size() - done), done);
            if (written == 0) errno = ENOSPC;
            if (written == 0 || (written < 0 && errno != EINTR)) return false;
            if (written > 0) done += int(written);
        }
        return ftruncate(_descriptor, bytes.size()) == 0;
    }
    /// At most `most` bytes from the start; nothing, with `errno`, when they cannot be read.
    [[nodiscard]] std::optional<QByteArray> read(int most) const
    {
        QByteArray bytes(most, Qt::Uninitialized);
        int done = 0;
        while (done < most) {
            const ssize_t found = ::pread(_descriptor, bytes.data() + done, std::size_t(most - done), done);
            if (found < 0 && errno == EINTR) continue;
            if (found < 0) return std::nullopt;
            if (found == 0) break;
            done += int(found);
        }
        bytes.truncate(done);
        return bytes;
    }

private:
    int _descriptor;
};

} // namespace LCD::MainConfigImpl

#endif
