#include "tests/wire/LayoutCheck.h"

#include <cstring>

namespace tarn::test {

using protocol::Field;
using protocol::Layout;
using protocol::Type;

namespace {

/** Follows a layout along the words; stops at the first difference, or where the words end. */
class Walk {
  public:
    explicit Walk(const std::vector<ParcelWord>& words) : mWords(words) {}

    void follow(const Layout& layout) {
        for (const Field& field : layout) {
            if (mStopped) return;
            follow(field);
        }
    }

    bool atEnd() const { return mNext == mWords.size(); }
    bool stopped() const { return mStopped; }

    /** The words, with a mark at the one that is not the layout's. */
    std::string shown() const {
        std::string text;
        for (size_t i = 0; i < mWords.size(); i++) {
            text += i == mNext ? " >" : " ";
            text += mWords[i].type;
        }
        return text;
    }

  private:
    void follow(const Field& field) {
        switch (field.type) {
            case Type::kBytes:
                take("i32");
                take("raw");
                break;
            case Type::kList:
                for (int32_t left = take("i32"); left > 0 && !mStopped; left--)
                    follow(field.record);
                break;
            default:
                take(protocol::typeWord(field.type));
                break;
        }
    }

    int32_t take(const char* type) {
        mStopped = mStopped || atEnd() || !fits(mWords[mNext], type);
        return mStopped ? 0 : mWords[mNext++].value;
    }

    /** Some methods write a switch as an integer, 0 or 1. */
    static bool fits(const ParcelWord& word, const char* type) {
        if (strcmp(word.type, type) == 0) return true;
        return strcmp(type, "bool") == 0 && strcmp(word.type, "i32") == 0 &&
               (word.value == 0 || word.value == 1);
    }

    const std::vector<ParcelWord>& mWords;
    size_t mNext = 0;
    bool mStopped = false;
};

}  // namespace

std::string compareWritten(const Layout& layout, const std::vector<ParcelWord>& words) {
    Walk walk(words);
    walk.follow(layout);
    if (walk.atEnd() && !walk.stopped()) return "";
    return "wrote" + walk.shown() + ", which is not its request";
}

bool readToTheEnd(const Layout& layout, const std::vector<ParcelWord>& words) {
    Walk walk(words);
    walk.follow(layout);
    return !walk.stopped();
}

std::string compareRead(const Layout& layout, const std::vector<ParcelWord>& words) {
    Walk walk(words);
    walk.follow(layout);
    return walk.atEnd() ? "" : "read" + walk.shown() + ", which is not its reply";
}

}  // namespace tarn::test
