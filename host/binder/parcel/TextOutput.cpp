#define LOG_TAG "TextOutput"

#include <binder/TextOutput.h>
#include <log/log.h>
#include <unistd.h>

#include <mutex>
#include <string>

namespace android {

TextOutput::TextOutput() = default;

TextOutput::~TextOutput() = default;

namespace {

// Passes on whole lines, each with the indentation that was set when it began.
class LineOutput : public TextOutput {
  public:
    status_t print(const char* txt, size_t len) override {
        std::lock_guard<std::mutex> lock(mLock);
        for (size_t i = 0; i < len; i++) {
            if (mLine.empty() && txt[i] != '\n') mLine.assign(mIndent * kIndentWidth, ' ');
            if (txt[i] != '\n') mLine += txt[i];
            if (txt[i] == '\n') finishLine();
        }
        if (mBundles == 0 && !mLine.empty()) finishPart(&mLine);
        return NO_ERROR;
    }

    void moveIndent(int delta) override {
        std::lock_guard<std::mutex> lock(mLock);
        mIndent = delta < 0 && mIndent < static_cast<size_t>(-delta) ? 0 : mIndent + delta;
    }

    void pushBundle() override {
        std::lock_guard<std::mutex> lock(mLock);
        mBundles++;
    }

    void popBundle() override {
        std::lock_guard<std::mutex> lock(mLock);
        if (--mBundles == 0 && !mLine.empty()) finishPart(&mLine);
    }

  protected:
    virtual void writeLine(const std::string& line) = 0;
    virtual void finishPart(std::string* part) = 0;

  private:
    static constexpr size_t kIndentWidth = 2;

    void finishLine() {
        writeLine(mLine);
        mLine.clear();
    }

    std::mutex mLock;
    std::string mLine;
    size_t mIndent = 0;
    int mBundles = 0;
};

class LogOutput : public LineOutput {
  protected:
    void writeLine(const std::string& line) override { ALOGI("%s", line.c_str()); }
    // A log has whole lines only.
    void finishPart(std::string*) override {}
};

class DescriptorOutput : public LineOutput {
  public:
    explicit DescriptorOutput(int fd) : mFd(fd) {}

  protected:
    void writeLine(const std::string& line) override { writeAll(line + "\n"); }
    void finishPart(std::string* part) override {
        writeAll(*part);
        part->clear();
    }

  private:
    void writeAll(const std::string& text) const {
        size_t done = 0;
        while (done < text.size()) {
            const ssize_t count = ::write(mFd, text.data() + done, text.size() - done);
            if (count <= 0) return;
            done += static_cast<size_t>(count);
        }
    }

    const int mFd;
};

}  // namespace

TextOutput& alog = *new LogOutput;
TextOutput& aout = *new DescriptorOutput(STDOUT_FILENO);
TextOutput& aerr = *new DescriptorOutput(STDERR_FILENO);

}  // namespace android
