#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "vcl/classes/Properties.h"
#include "vcl/classes/Stream.h"

namespace vcl
{

namespace
{

constexpr int AccessMask = 3;

int OpenFlags(int Mode)
{
    if (Mode == fmCreate)
        return O_RDWR | O_CREAT | O_TRUNC;
    switch (Mode & AccessMask) {
    case fmOpenWrite:
        return O_WRONLY;
    case fmOpenReadWrite:
        return O_RDWR;
    default:
        return O_RDONLY;
    }
}

/// Opens the file; -1 with errno set when that fails. A directory opens for reading, but is no file to read.
int OpenFile(const AnsiString& FileName, int Mode)
{
    constexpr mode_t Permissions = 0666;
    if (FileName.find('\0') != AnsiString::npos) {
        errno = ENOENT;
        return -1;
    }
    const int Descriptor = open(FileName.c_str(), OpenFlags(Mode) | O_CLOEXEC, Permissions);
    struct stat Status {
    };
    if (Descriptor >= 0 && fstat(Descriptor, &Status) == 0 && S_ISDIR(Status.st_mode)) {
        close(Descriptor);
        errno = EISDIR;
        return -1;
    }
    return Descriptor;
}

AnsiString SystemReason(int Error)
{
    return std::generic_category().message(Error);
}

/// Repeats a partial or interrupted transfer until all is done, nothing more comes or it fails.
template <class TTransfer>
std::int64_t TransferAll(std::int64_t Count, TTransfer Transfer)
{
    std::int64_t Done = 0;
    while (Done < Count) {
        const ssize_t Step = Transfer(Done, static_cast<std::size_t>(Count - Done));
        if (Step < 0 && errno == EINTR)
            continue;
        if (Step <= 0)
            break;
        Done += Step;
    }
    return Done;
}

} // namespace

const TClass& TFileStream::StaticClass()
{
    static const TClass Class = DefineClass<TFileStream, TStream>("TFileStream");
    return Class;
}

TFileStream::TFileStream(const AnsiString& FileName, int Mode)
    : FFileName(FileName), FDescriptor(OpenFile(FileName, Mode))
{
    if (FDescriptor >= 0)
        return;
    const AnsiString Reason = SystemReason(errno);
    if (Mode == fmCreate)
        throw EFCreateError("Unable to create file \"" + FileName + "\": " + Reason);
    throw EFOpenError("Unable to open file \"" + FileName + "\": " + Reason);
}

TFileStream::~TFileStream()
{
    close(FDescriptor);
}

std::int64_t TFileStream::GetSize()
{
    struct stat Status {
    };
    return fstat(FDescriptor, &Status) == 0 && S_ISREG(Status.st_mode) ? Status.st_size : TStream::GetSize();
}

void TFileStream::SetSize(std::int64_t Size)
{
    if (ftruncate(FDescriptor, Size) != 0)
        throw EFileStreamError("Unable to set the size of file \"" + FFileName +
                               "\": " + SystemReason(errno));
    SetPosition(Size);
}

std::int64_t TFileStream::Read(void* Buffer, std::int64_t Count)
{
    return TransferAll(Count, [&](std::int64_t Done, std::size_t Left) {
        return read(FDescriptor, static_cast<char*>(Buffer) + Done, Left);
    });
}

std::int64_t TFileStream::Write(const void* Buffer, std::int64_t Count)
{
    return TransferAll(Count, [&](std::int64_t Done, std::size_t Left) {
        return write(FDescriptor, static_cast<const char*>(Buffer) + Done, Left);
    });
}

std::int64_t TFileStream::Seek(std::int64_t Offset, TSeekOrigin Origin)
{
    const int Whence = Origin == TSeekOrigin::soBeginning ? SEEK_SET
                       : Origin == TSeekOrigin::soCurrent ? SEEK_CUR
                                                          : SEEK_END;
    return lseek(FDescriptor, Offset, Whence);
}

} // namespace vcl
