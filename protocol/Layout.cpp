#include "protocol/Layout.h"

#include <cctype>
#include <stdexcept>

namespace tarn::protocol {

namespace {

struct TypeName {
    const char* word;
    Type type;
};

constexpr TypeName kTypeNames[] = {
        {"i32", Type::kInt32}, {"bool", Type::kBool},   {"s16", Type::kString16},
        {"f32", Type::kFloat}, {"bytes", Type::kBytes},
};

// Keeps a hostile text from exhausting the stack; no command has a list within a list.
constexpr int kMostNestedLists = 16;

class Parser {
  public:
    explicit Parser(const std::string& text) : mText(text) {}

    Layout parse() {
        Layout layout = fields('\0');
        if (mPos != mText.size()) fail("unexpected text");
        return layout;
    }

  private:
    Layout fields(char end) {
        Layout layout;
        skipBlanks();
        if (peek() == end) return layout;
        layout.push_back(field());
        while (peek() == ',') {
            mPos++;
            layout.push_back(field());
        }
        return layout;
    }

    Field field() {
        skipBlanks();
        Field field;
        if (peek() == '[') {
            field.type = Type::kList;
            field.record = record();
            skipBlanks();
        } else {
            field.type = type();
        }
        field.name = word();
        if (field.name.empty()) fail("missing name");
        skipBlanks();
        return field;
    }

    Layout record() {
        if (++mNested > kMostNestedLists)
            fail("more than " + std::to_string(kMostNestedLists) + " nested lists");
        mPos++;
        Layout record = fields(']');
        if (peek() != ']') fail("missing ']'");
        mPos++;
        mNested--;
        return record;
    }

    Type type() {
        const std::string found = word();
        skipBlanks();
        for (const TypeName& known : kTypeNames) {
            if (found == known.word) return known.type;
        }
        fail("unknown type '" + found + "'");
    }

    std::string word() {
        const size_t start = mPos;
        while (isalnum(static_cast<unsigned char>(peek())) || peek() == '_') mPos++;
        return mText.substr(start, mPos - start);
    }

    void skipBlanks() {
        while (peek() == ' ') mPos++;
    }

    char peek() const { return mPos < mText.size() ? mText[mPos] : '\0'; }

    [[noreturn]] void fail(const std::string& what) const {
        throw std::invalid_argument("layout \"" + mText + "\", column " + std::to_string(mPos + 1) +
                                    ": " + what);
    }

    const std::string& mText;
    size_t mPos = 0;
    int mNested = 0;
};

}  // namespace

Layout parseLayout(const std::string& text) {
    return Parser(text).parse();
}

const char* typeWord(Type type) {
    for (const TypeName& known : kTypeNames) {
        if (type == known.type) return known.word;
    }
    return "list";
}

}  // namespace tarn::protocol
