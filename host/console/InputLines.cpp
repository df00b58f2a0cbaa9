#include "host/console/InputLines.h"

#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/mfc/WinApp.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

/// Whether lines arrive over time, from a terminal or pipe.
bool IsAwaited(std::FILE* stream) {
    struct stat info {};
    return fstat(fileno(stream), &info) == 0 && !S_ISREG(info.st_mode);
}

class LinesOfStream : public IInputLines {
public:
    explicit LinesOfStream(std::FILE* stream) : m_stream(stream), m_isAwaited(IsAwaited(stream)) {
        if (m_isAwaited) {
            // Waiting for the descriptor would not see buffered input.
            std::setvbuf(stream, nullptr, _IONBF, 0);
        }
    }
    ~LinesOfStream() override { std::free(m_line); }
    LinesOfStream(const LinesOfStream&) = delete;
    LinesOfStream& operator=(const LinesOfStream&) = delete;

    std::optional<CString> Next() override {
        if (m_isAwaited) {
            AfxWaitForInput(fileno(m_stream));
        }
        ssize_t length = getline(&m_line, &m_capacity, m_stream);
        if (length < 0) {
            return std::nullopt;
        }
        ++m_nLine;
        while (length > 0 && (m_line[length - 1] == '\n' || m_line[length - 1] == '\r')) {
            --length;
        }
        std::string_view text(m_line, static_cast<std::size_t>(length));
        constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
        if (m_nLine == 1 && text.starts_with(kByteOrderMark)) {
            text.remove_prefix(kByteOrderMark.size());
        }
        return WidePath(text); // a line may be the name of a file
    }
    int LineNumber() const override { return m_nLine; }
    CString Name() const override { return {}; }
    bool WantsEcho() const override { return isatty(fileno(m_stream)) == 0; }

private:
    std::FILE* m_stream;
    bool m_isAwaited;
    char* m_line = nullptr;
    std::size_t m_capacity = 0;
    int m_nLine = 0;
};

class LinesOfFile final : public LinesOfStream {
public:
    LinesOfFile(FileHandle file, const wchar_t* path)
        : LinesOfStream(file.get()), m_file(std::move(file)), m_strName(FileNameOf(path)) {}
    CString Name() const override { return m_strName; }
    bool WantsEcho() const override { return true; }

private:
    FileHandle m_file;
    CString m_strName;
};

} // namespace

std::unique_ptr<IInputLines> StreamLines(std::FILE* stream) {
    return std::make_unique<LinesOfStream>(stream);
}

std::unique_ptr<IInputLines> FileLines(const wchar_t* path) {
    FileHandle file = OpenFile(path, "rb");
    struct stat info {};
    if (file && (fstat(fileno(file.get()), &info) != 0 || S_ISDIR(info.st_mode))) {
        SetLastErrorNumber(EISDIR);
        return nullptr;
    }
    return file ? std::make_unique<LinesOfFile>(std::move(file), path) : nullptr;
}

} // namespace Tessaly
