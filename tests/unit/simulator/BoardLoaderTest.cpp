#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "simulator/BoardFiles.h"
#include "simulator/description/BoardLoader.h"

namespace tarn::simulator {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using values::Bytes;
using values::List;
using values::Record;
using values::Value;

namespace {

/** Board files in a folder of their own; problems are told with paths relative to it. */
class BoardLoader : public ::testing::Test {
  protected:
    BoardLoader() {
        char name[] = "/tmp/tarn-board-XXXXXX";
        mFolder = mkdtemp(name);
    }
    ~BoardLoader() override { std::filesystem::remove_all(mFolder); }

    void write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories((mFolder / name).parent_path());
        std::ofstream(mFolder / name) << text;
    }

    std::shared_ptr<const BoardModel> load(const std::string& overrideName = "") const {
        return loadBoard(mFolder / "board.json",
                         overrideName.empty() ? "" : std::string(mFolder / overrideName));
    }

    std::vector<std::string> problems(const std::string& overrideName = "") const {
        std::vector<std::string> texts;
        try {
            load(overrideName);
        } catch (const BoardFileError& e) {
            for (const Problem& problem : e.problems()) texts.push_back(relative(problem.text()));
        }
        return texts;
    }

    /** What is wrong with a board of one property and one command on lines 4 and 7. */
    std::vector<std::string> problemsOf(const std::string& property, const std::string& command) {
        write("board.json",
              "{\n"
              "\"name\": \"small\",\n"
              "\"properties\": {\n" +
                      property +
                      "\n},\n"
                      "\"commands\": {\n" +
                      command + "\n}}\n");
        return problems();
    }

    std::vector<std::string> problemsOfProperty(const std::string& property) {
        return problemsOf(property, "");
    }

    std::vector<std::string> problemsOfCommand(const std::string& command) {
        return problemsOf(R"("a.word": {"type": "i32", "initial": 1, "min": 0, "max": 9}, )"
                          R"("a.text": {"type": "s16", "initial": "x"}, )"
                          R"("a.each": {"type": "i32", "initial": 0, "indexed": true})",
                          command);
    }

    std::filesystem::path mFolder;

  private:
    std::string relative(std::string text) const {
        const std::string prefix = mFolder.string() + "/";
        for (size_t at; (at = text.find(prefix)) != std::string::npos;) {
            text.erase(at, prefix.size());
        }
        return text;
    }
};

const Property& property(const BoardModel& model, const std::string& name) {
    for (const Property& candidate : model.properties) {
        if (candidate.name == name) return candidate;
    }
    throw std::out_of_range(name);
}

}  // namespace

TEST_F(BoardLoader, ReadsPropertiesOfEveryType) {
    write("board.json", R"({
        "name": "all types",
        "properties": {
            "a.word":  {"type": "i32",   "initial": -5, "min": -10, "max": 10},
            "a.mode":  {"type": "i32",   "initial": 2, "values": [1, 2, 4]},
            "a.on":    {"type": "bool",  "initial": true},
            "a.real":  {"type": "f32",   "initial": 0.5, "min": 0, "max": 1},
            "a.whole": {"type": "f32",   "initial": 3},
            "a.text":  {"type": "s16",   "initial": "gr\u00fcn \ud83d\ude00"},
            "a.bytes": {"type": "bytes", "initial": [0, 127, 255]},
            "a.hex":   {"type": "bytes", "initial": "00 7fFF"},
            "a.gain":  {"type": "i32",   "initial": 7, "indexed": true},
            "a.list":  {"type": "list",  "initial": [["b"], "c"]}
        },
        "commands": {"CMD_LANDSCAPE_GET_APP_LIST": {"get": "a.list"}}
    })");

    const auto model = load();

    EXPECT_EQ("all types", model->name);
    EXPECT_EQ(Value{int32_t{-5}}, property(*model, "a.word").initial);
    EXPECT_EQ(-10, property(*model, "a.word").min);
    EXPECT_EQ(3U, property(*model, "a.mode").values.size());
    EXPECT_EQ(Value{true}, property(*model, "a.on").initial);
    EXPECT_EQ(Value{0.5F}, property(*model, "a.real").initial);
    EXPECT_EQ(Value{3.0F}, property(*model, "a.whole").initial);
    EXPECT_EQ(Value{std::u16string(u"gr\u00fcn \U0001F600")}, property(*model, "a.text").initial);
    EXPECT_EQ((Value{Bytes{0, 127, 255}}), property(*model, "a.bytes").initial);
    EXPECT_EQ((Value{Bytes{0, 127, 255}}), property(*model, "a.hex").initial);
    EXPECT_TRUE(property(*model, "a.gain").indexed);
    const List list{Record{Value{std::u16string(u"b")}}, Record{Value{std::u16string(u"c")}}};
    EXPECT_EQ(Value{list}, property(*model, "a.list").initial);
}

TEST_F(BoardLoader, ReadsIncludesRelativeToTheFileThatNamesThem) {
    write("board.json", R"({"name": "parts", "include": ["parts/one.json"]})");
    write("parts/one.json", R"({"include": ["two.json"],
                                "commands": {"CMD_AUDIO_GET_VOLUME": {"get": "a.word"}}})");
    write("parts/two.json", R"({"properties": {"a.word": {"type": "i32", "initial": 1}}})");

    EXPECT_EQ(1U, load()->commands.size());
}

TEST_F(BoardLoader, TellsAMissingFile) {
    EXPECT_THAT(problems(), ElementsAre("board.json: can't be read: No such file or directory"));
}

TEST_F(BoardLoader, RefusesWhatIsNoFile) {
    std::filesystem::create_directory(mFolder / "folder.json");
    std::filesystem::create_symlink("/dev/zero", mFolder / "zero.json");
    write("board.json", "{\"name\": \"x\"}");
    EXPECT_THAT(problems("folder.json"), ElementsAre("folder.json: can't be read: it is a folder"));
    EXPECT_THAT(problems("zero.json"), ElementsAre("zero.json: can't be read: it is a device"));
}

TEST_F(BoardLoader, RefusesAFileOfMoreThan16MiB) {
    const std::string board = "{\"name\": \"x\"}";
    constexpr size_t kMost = 16777216;
    write("board.json", board + std::string(kMost - board.size(), ' '));
    EXPECT_EQ("x", load()->name);
    write("board.json", board + std::string(kMost + 1 - board.size(), ' '));
    EXPECT_THAT(problems(), ElementsAre("board.json: is larger than 16 MiB"));
}

TEST_F(BoardLoader, ReadsAPipe) {
    ASSERT_EQ(0, mkfifo((mFolder / "board.json").c_str(), 0600));
    std::thread writer([this] { write("board.json", "{\"name\": \"piped\"}"); });
    EXPECT_EQ("piped", load()->name);
    writer.join();
}

TEST_F(BoardLoader, TellsAMissingIncludeAtItsLine) {
    write("board.json", "{\"name\": \"x\",\n\"include\": [\n\"gone.json\"]}");
    EXPECT_THAT(problems(), ElementsAre("board.json:3: included 'gone.json' is missing"));
}

TEST_F(BoardLoader, TellsAnIncludedFolderAndANameThatNoFileCanHave) {
    write("parts/one.json", "{}");
    const std::string longName(300, 'x');
    write("board.json", "{\"name\": \"x\",\n\"include\": [\n\"parts\",\n\"" + longName + "\"]}");
    EXPECT_THAT(problems(), ElementsAre("board.json:3: included 'parts' is not a regular file",
                                        "board.json:4: included '" + longName + "' is missing"));
}

TEST_F(BoardLoader, RefusesANameThatIsEmptyOrNotUtf8) {
    write("board.json", "{\n\"name\": \"\"}");
    EXPECT_THAT(problems(), ElementsAre("board.json:2: name is empty"));
    write("board.json", "{\n\"name\": \"\xff\"}");
    EXPECT_THAT(problems(), ElementsAre("board.json:2: name is not UTF-8"));
    EXPECT_THAT(problemsOfProperty(R"("": {"type": "i32", "initial": 1})"),
                ElementsAre("board.json:4: a property's name is empty"));
    EXPECT_THAT(problemsOfProperty("\"\xff\": {\"type\": \"i32\", \"initial\": 1}"),
                ElementsAre("board.json:4: a property's name is not UTF-8"));
}

TEST_F(BoardLoader, RefusesAFileThatIncludesItself) {
    write("board.json", "{\"name\": \"x\",\n\"include\": [\"board.json\"]}");
    EXPECT_THAT(problems(),
                ElementsAre("board.json:2: 'board.json' is included for a second time"));
}

TEST_F(BoardLoader, TellsTheLineOfASyntaxError) {
    write("board.json", "{\n\"name\": \"x\",\n}");
    EXPECT_THAT(problems(), ElementsAre("board.json:3: Missing '}' or object member name"));
    write("board.json", "{\"name\": \"x\"}\n// no comments");
    EXPECT_THAT(problems(), ElementsAre(StartsWith("board.json:2: ")));
    write("board.json", "");
    EXPECT_THAT(problems(), ElementsAre(StartsWith("board.json:1: ")));
    write("board.json", "[1]");
    EXPECT_THAT(problems(), ElementsAre("board.json:1: the file needs an object"));
    write("board.json", std::string(100'000, '['));
    EXPECT_THAT(problems(), ElementsAre(StartsWith("board.json:1: ")));
}

TEST_F(BoardLoader, RefusesADuplicateKey) {
    EXPECT_THAT(problemsOf("\"a.word\": {\"type\": \"i32\", \"initial\": 1},\n"
                           "\"a.word\": {\"type\": \"i32\", \"initial\": 2}",
                           ""),
                ElementsAre("board.json:5: Duplicate key: 'a.word'"));
}

TEST_F(BoardLoader, RefusesADescriptionThatAnotherFileHasToo) {
    write("board.json", "{\"name\": \"x\", \"include\": [\"a.json\", \"b.json\"]}");
    write("a.json", "{\"commands\": {\n\"CMD_AUDIO_START_AIEQ_CALIBRATION\": {}}}");
    write("b.json", "{\"commands\": {\n\n\"CMD_AUDIO_START_AIEQ_CALIBRATION\": {}}}");
    EXPECT_THAT(problems(), ElementsAre("b.json:3: 'CMD_AUDIO_START_AIEQ_CALIBRATION' is described "
                                        "already in a.json:2"));
}

TEST_F(BoardLoader, RefusesUnknownKeysEverywhere) {
    write("board.json", "{\"name\": \"x\",\n\"property\": {}}");
    EXPECT_THAT(problems(), ElementsAre("board.json:2: unknown key 'property'; accepted: name, "
                                        "include, properties, commands"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 1, "maximum": 2})"),
                ElementsAre("board.json:4: unknown key 'maximum'; accepted: type, initial, min, "
                            "max, values, indexed"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_VOLUME": {"got": "a.word"})"),
                ElementsAre("board.json:7: unknown key 'got'; accepted: get, set, index, reply, "
                            "status, event, latencyMs, fail"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_START_AIEQ_CALIBRATION": {"event": {"typ": 1}})"),
                ElementsAre("board.json:7: unknown key 'typ'; accepted: type, data"));
    EXPECT_THAT(
            problemsOfCommand(R"("CMD_AUDIO_START_AIEQ_CALIBRATION": {"fail": {"delayMs": 1}})"),
            ElementsAre("board.json:7: unknown key 'delayMs'; accepted: status, every"));
}

TEST_F(BoardLoader, RefusesAnUnknownCommand) {
    EXPECT_THAT(problemsOfCommand("\"CMD_AUDIO_GET_VOLUMEN\": {}"),
                ElementsAre("board.json:7: unknown command 'CMD_AUDIO_GET_VOLUMEN'"));
}

TEST_F(BoardLoader, RefusesAPropertyThatIsDescribedWrongly) {
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i64", "initial": 1})"),
                ElementsAre("board.json:4: unknown type 'i64'; accepted: i32, bool, s16, f32, "
                            "bytes, list"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"initial": 1})"),
                ElementsAre("board.json:4: property 'a' has no type"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32"})"),
                ElementsAre("board.json:4: property 'a' has no initial"));
    EXPECT_THAT(problemsOfProperty(R"("a": 5)"),
                ElementsAre("board.json:4: property 'a' needs an object"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 1, "indexed": 1})"),
                ElementsAre("board.json:4: indexed needs true or false"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 1, "min": 5, "max": 4})"),
                ElementsAre("board.json:4: max is below min"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "bool", "initial": true, "min": 0})"),
                ElementsAre("board.json:4: min needs a property of type i32 or f32"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "bool", "initial": true, "values": [true]})"),
                ElementsAre("board.json:4: values need a property of type i32, f32 or s16"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 1, "values": []})"),
                ElementsAre("board.json:4: values need an array of at least one value"));
}

TEST_F(BoardLoader, RefusesAnInitialValueOfAnotherType) {
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": "1"})"),
                ElementsAre("board.json:4: initial: needs a whole number (i32)"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 1.0})"),
                ElementsAre("board.json:4: initial: needs a whole number (i32)"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 2147483648})"),
                ElementsAre("board.json:4: initial: number is beyond 32 bits"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "bool", "initial": 1})"),
                ElementsAre("board.json:4: initial: needs true or false (bool)"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "f32", "initial": true})"),
                ElementsAre("board.json:4: initial: needs a number (f32)"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "f32", "initial": 1e39})"),
                ElementsAre("board.json:4: initial: number is beyond f32"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "s16", "initial": null})"),
                ElementsAre("board.json:4: initial: needs a text (s16)"));
    EXPECT_THAT(problemsOfProperty("\"a\": {\"type\": \"s16\", \"initial\": \"\xff\"}"),
                ElementsAre("board.json:4: initial: text is not UTF-8"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "bytes", "initial": [256]})"),
                ElementsAre("board.json:4: initial: needs a number from 0 to 255 (bytes)"));
    EXPECT_THAT(
            problemsOfProperty(R"("a": {"type": "bytes", "initial": "abc"})"),
            ElementsAre("board.json:4: initial: text is not made of hexadecimal pairs (bytes)"));
}

TEST_F(BoardLoader, RefusesAnInitialValueOutsideItsOwnRange) {
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 101, "max": 100})"),
                ElementsAre("board.json:4: initial is above the largest value 100"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "f32", "initial": 0.1, "min": 0.5})"),
                ElementsAre("board.json:4: initial is below the smallest value 0.5"));
    EXPECT_THAT(problemsOfProperty(R"("a": {"type": "i32", "initial": 3, "values": [1, 2]})"),
                ElementsAre("board.json:4: initial is not one of its values"));
}

TEST_F(BoardLoader, TellsTheLineOfTheValueItself) {
    EXPECT_THAT(problemsOfProperty("\"a\": {\n\"type\": \"i32\",\n\"initial\": true}"),
                ElementsAre("board.json:6: initial: needs a whole number (i32)"));
}

TEST_F(BoardLoader, RefusesAListWhoseRecordsDontFitItsCommand) {
    const std::string command = R"("CMD_FW_TOUCH_GET_DRIVER_LIST": {"get": "a"})";
    const std::string record =
            "[i32 value0, i32 value1, i32 value2, s16 text0, bool flag0, s16 text1]";
    EXPECT_THAT(
            problemsOf(R"("a": {"type": "list", "initial": [[1, 2, 3, "x", true, "y"]]})", command),
            IsEmpty());
    EXPECT_THAT(problemsOf(R"("a": {"type": "list", "initial": [[1, 2, 3, "x", true]]})", command),
                ElementsAre("board.json:4: initial: record has 5 fields, not the 6 of " + record));
    EXPECT_THAT(problemsOf(R"("a": {"type": "list", "initial": [5]})", command),
                ElementsAre("board.json:4: initial: needs an array for each record " + record));
    EXPECT_THAT(problemsOf(R"("a": {"type": "list", "initial": [[1, 2, "3", "x", true, "y"]]})",
                           command),
                ElementsAre("board.json:4: initial: needs a whole number (i32)"));
    EXPECT_THAT(problemsOf(R"("a": {"type": "list", "initial": []})",
                           command + R"(, "CMD_LANDSCAPE_GET_APP_LIST": {"get": "a"})"),
                ElementsAre("board.json:7: property 'a' is " + record +
                            ", the field 'apps' [s16 app]"));
    EXPECT_THAT(problemsOf(R"("a": {"type": "list", "initial": []})", ""),
                ElementsAre("board.json:4: no command uses the list 'a', so that nothing says what "
                            "its records are"));
}

TEST_F(BoardLoader, RefusesUnknownReferences) {
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_VOLUME": {"get": "a.none"})"),
                ElementsAre("board.json:7: unknown property 'a.none'"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_VOLUME": {"set": {"a.word": "volumen"}})"),
                ElementsAre("board.json:7: request \"i32 volume\" has no argument 'volumen'"));
    EXPECT_THAT(
            problemsOfCommand(R"("CMD_AUDIO_GET_AUDIO_GAIN": {"get": "a.each", "index": "out"})"),
            ElementsAre("board.json:7: request \"i32 output\" has no argument 'out'"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_OTG_MIC_STATE": {"reply": ["@none"]})"),
                ElementsAre("board.json:7: reply: request \"\" has no argument 'none'"));
    EXPECT_THAT(problemsOf(R"("a": {"type": "i32"})", R"("CMD_AUDIO_GET_VOLUME": {"get": "a"})"),
                ElementsAre("board.json:4: property 'a' has no initial",
                            "board.json:7: refused property 'a'"));
}

TEST_F(BoardLoader, RefusesAPropertyThatDoesntFitTheCommand) {
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_VOLUME": {"get": "a.text"})"),
                ElementsAre("board.json:7: property 'a.text' is s16, the field 'status' i32"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_VOLUME": {"set": "a.text"})"),
                ElementsAre("board.json:7: property 'a.text' is s16, the field 'volume' i32"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AI_NOISE_GET_AI_NOISE": {"get": "a.word"})"),
                ElementsAre("board.json:7: property 'a.word' is i32, the field 'level' f32"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_START_AIEQ_CALIBRATION": {"set": "a.word"})"),
                ElementsAre("board.json:7: set needs exactly one argument besides the index, "
                            "request \"\" has 0"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_AUDIO_GAIN": {"set": "a.word"})"),
                ElementsAre("board.json:7: set needs exactly one argument besides the index, "
                            "request \"i32 output, i32 gain\" has 2"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_VOLUME": {"set": {"a.word": 10}})"),
                ElementsAre("board.json:7: constant is above the largest value 9"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_VOLUME": {"set": {"a.word": "=10"}})"),
                ElementsAre("board.json:7: constant of 'a.word': needs a whole number (i32)"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_VOLUME": {"set": 10})"),
                ElementsAre("board.json:7: set needs a property, or an object of properties and "
                            "arguments"));
}

TEST_F(BoardLoader, RefusesAReplyThatDoesntFitTheLayout) {
    const std::string name = "\"CMD_LANDSCAPE_SET_APP_LIST\": ";
    EXPECT_THAT(problemsOfCommand(name + R"({"reply": [1, true]})"), IsEmpty());
    EXPECT_THAT(problemsOfCommand(name + R"({"reply": [1]})"),
                ElementsAre("board.json:7: reply needs an array of 2 fields, \"i32 ignored, bool "
                            "done\""));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_OTG_MIC_STATE": {"reply": []})"),
                ElementsAre("board.json:7: reply needs an array of 1 field, \"bool on\""));
    EXPECT_THAT(problemsOfCommand(name + R"({"reply": [1, 1]})"),
                ElementsAre("board.json:7: reply: needs true or false (bool)"));
    EXPECT_THAT(problemsOfCommand(name + R"({"reply": [1, "@apps"]})"),
                ElementsAre("board.json:7: reply: argument is [s16 app], the field bool"));
    EXPECT_THAT(problemsOfCommand(name + "{}"),
                ElementsAre("board.json:7: reply \"i32 ignored, bool done\" has to be described"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_LANDSCAPE_GET_APP_LIST": {"reply": [["a", ["b"]]]})"),
                IsEmpty());
    EXPECT_THAT(problemsOfCommand(R"("CMD_LANDSCAPE_GET_APP_LIST": {"reply": [["a", 5]]})"),
                ElementsAre("board.json:7: reply: needs a text (s16)"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_LANDSCAPE_GET_APP_LIST": {"reply": [[["a", "b"]]]})"),
                ElementsAre("board.json:7: reply: record does not fit [s16 app]"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_LANDSCAPE_GET_APP_LIST": {"reply": ["a"]})"),
                ElementsAre("board.json:7: reply: needs an array of records [s16 app]"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_VOLUME": {"reply": [1]})"),
                ElementsAre("board.json:7: reply needs an empty array or none: the command answers "
                            "with its status alone"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AV_GET_DSP_TEST_RESULT": {"get": "a.word"})"),
                ElementsAre("board.json:7: get answers with one field, reply \"i32 testStatus, "
                            "bytes result\" has 2"));
}

TEST_F(BoardLoader, RefusesKeysThatExcludeEachOther) {
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_VOLUME": {"get": "a.word", "set": "a.word"})"),
                ElementsAre("board.json:7: get and set exclude each other"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_VOLUME": {"get": "a.word", "status": 1})"),
                ElementsAre("board.json:7: get and status exclude each other"));
}

TEST_F(BoardLoader, RefusesAnIndexThatDoesntFit) {
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_GET_AUDIO_GAIN": {"get": "a.each"})"),
                ElementsAre("board.json:7: property 'a.each' is indexed, index is missing"));
    EXPECT_THAT(problemsOfCommand(
                        R"("CMD_AUDIO_GET_AUDIO_GAIN": {"get": "a.word", "index": "output"})"),
                ElementsAre("board.json:7: index selects nothing: no property here is indexed"));
    EXPECT_THAT(
            problemsOfCommand(R"("CMD_AUDIO_GET_AUDIO_GAIN": {"get": "a.each", "index": "output"},)"
                              R"("CMD_AUDIO_SET_AUDIO_GAIN": {"reply": [], "status": "$a.each",)"
                              R"( "index": ["output", "gain"]})"),
            ElementsAre("board.json:7: status: property 'a.each' has another index in another "
                        "command"));
    EXPECT_THAT(problemsOfCommand(R"("CMD_AUDIO_SET_AUDIO_GAIN": {"status": "$a.each",)"
                                  R"( "index": ["gain", "gain"]})"),
                ElementsAre("board.json:7: index names an argument twice"));
}

TEST_F(BoardLoader, RefusesABadEventLatencyOrFailure) {
    const auto problemsWith = [this](const std::string& part) {
        return problemsOfCommand("\"CMD_AUDIO_START_AIEQ_CALIBRATION\": {" + part + "}");
    };
    EXPECT_THAT(problemsWith(R"("event": {"type": "0x1402", "data": [1, true, "x", 0.5]})"),
                IsEmpty());
    EXPECT_THAT(problemsWith(R"("event": {"data": []})"),
                ElementsAre("board.json:7: event has no type"));
    EXPECT_THAT(problemsWith(R"("event": {"type": "0x1FFFFFFFF"})"),
                ElementsAre("board.json:7: type '0x1FFFFFFFF' is not a number of 32 bits"));
    EXPECT_THAT(problemsWith(R"("event": {"type": -1})"),
                ElementsAre("board.json:7: type is not within 0 to 4294967295"));
    EXPECT_THAT(problemsWith(R"("event": {"type": 1, "data": [[1]]})"),
                ElementsAre("board.json:7: data: needs a number, a text, true or false"));
    EXPECT_THAT(problemsWith(R"("latencyMs": -1)"),
                ElementsAre("board.json:7: latencyMs is not within 0 to 60000"));
    EXPECT_THAT(problemsWith(R"("latencyMs": "5")"),
                ElementsAre("board.json:7: latencyMs needs a whole number"));
    EXPECT_THAT(problemsWith(R"("fail": {"status": -3, "every": 0})"),
                ElementsAre("board.json:7: every is not within 1 to 2147483647"));
    EXPECT_THAT(problemsWith(R"("fail": {"every": 2})"),
                ElementsAre(HasSubstr("board.json:7: needs exactly one of status")));
    EXPECT_THAT(problemsWith(R"("status": "ok")"),
                ElementsAre("board.json:7: status: needs a whole number (i32)"));
}

TEST_F(BoardLoader, RefusesTwoDescriptionsOfCommandsThatLookAlike) {
    EXPECT_THAT(problemsOfCommand(R"("CMD_TOUCH_SET_STATE_DISABLED": {"set": "a.word"},)"
                                  R"("CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE": {"set": "a.word"})"),
                IsEmpty());
    EXPECT_THAT(problemsOfCommand(R"("CMD_TOUCH_SET_STATE_DISABLED": {},)"
                                  R"("CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE": {"set": "a.word"})"),
                ElementsAre(HasSubstr("share their code and look alike")));
}

TEST_F(BoardLoader, TellsTheProblemsOfAllFilesAtOnce) {
    write("board.json", R"({"name": "x", "include": ["a.json", "b.json", "c.json"]})");
    write("a.json", "{");
    write("b.json", R"({"properties": {"a": {"type": "i32"}, "b": {"type": "x", "initial": 1}}})");
    write("c.json", R"({"commands": {"CMD_NONE": {}}})");
    EXPECT_THAT(
            problems(),
            ElementsAre(StartsWith("a.json:1: "), "b.json:1: property 'a' has no initial",
                        "b.json:1: unknown type 'x'; accepted: i32, bool, s16, f32, bytes, list",
                        "c.json:1: unknown command 'CMD_NONE'"));
}

TEST_F(BoardLoader, TellsTheProblemsOfAFileInAFixedOrder) {
    // The includes, its own sections, its name; only then the override.
    write("board.json", R"({
        "commands": {"CMD_AUDIO_GET_VOLUME": {}},
        "properties": {"a": {"type": "i32", "initial": 1}},
        "include": ["none.json", "a.json"]})");
    write("a.json", R"({
        "commands": {"CMD_AUDIO_GET_VOLUME": {}},
        "properties": {"a": {"type": "i32", "initial": 1}}})");
    EXPECT_THAT(problems("over.json"),
                ElementsAre("board.json:4: included 'none.json' is missing",
                            "board.json:3: 'a' is described already in a.json:3",
                            "board.json:2: 'CMD_AUDIO_GET_VOLUME' is described already in a.json:2",
                            "board.json:1: the board has no name",
                            "over.json: can't be read: No such file or directory"));
}

TEST_F(BoardLoader, TellsTheProblemsOfABoardInAFixedOrder) {
    write("board.json", R"({
        "commands": {
            "CMD_LANDSCAPE_GET_APP_LIST": {"get": "a.list"},
            "CMD_NONE": {},
            "CMD_TOUCH_SET_STATE_DISABLED": {},
            "CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE": {"set": "a.word"}
        },
        "properties": {
            "a.list": {"type": "list", "initial": [1]},
            "a.none": {"type": "i32"},
            "a.word": {"type": "i32", "initial": 1}
        },
        "include": ["none.json"],
        "name": "default"})");
    write("over.json", R"({"properties": {"b.new": {"type": "i32", "initial": 1}}})");
    std::vector<std::string> all = problems("over.json");
    ASSERT_GT(all.size(), 7U);
    const std::vector<std::string> missing(all.begin() + 6, all.end());
    all.resize(6);
    EXPECT_THAT(all, ElementsAre("board.json:13: included 'none.json' is missing",
                                 "board.json:10: property 'a.none' has no initial",
                                 "board.json:4: unknown command 'CMD_NONE'",
                                 StartsWith("board.json:9: "),
                                 HasSubstr("over.json:1: property 'b.new' is not in the board"),
                                 HasSubstr("share their code and look alike")));
    EXPECT_THAT(missing, ::testing::Each(StartsWith("board.json: commands of ")));
}

TEST_F(BoardLoader, WantsANameAndADescriptionOfEveryCommandFromTheDefaultBoard) {
    write("board.json", "{}");
    EXPECT_THAT(problems(), ElementsAre("board.json:1: the board has no name"));
    write("board.json", R"({"name": "default",
                            "commands": {"CMD_AI_NOISE_SET_AI_NOISE": {}}})");
    EXPECT_THAT(problems(), ::testing::Contains("board.json: commands of AiNoiseCtrl without a "
                                                "description: CMD_AI_NOISE_GET_AI_NOISE"));
}

TEST_F(BoardLoader, LetsAnOverrideReplaceWholeDescriptions) {
    write("board.json", R"({"name": "base",
        "properties": {"a": {"type": "i32", "initial": 1, "max": 5}},
        "commands": {"CMD_AUDIO_GET_VOLUME": {"get": "a"}}})");
    write("over.json", R"({"name": "other",
        "properties": {"a": {"type": "i32", "initial": 50}, "b": {"type": "s16", "initial": "t"}},
        "commands": {"CMD_AUDIO_GET_VOLUME": {"get": "a", "latencyMs": 5},
                     "CMD_PROJECT_ID_GET_WIFI_COUNTRY_CODE": {"get": "b"}}})");

    const auto model = load("over.json");

    EXPECT_EQ("base", model->name);
    EXPECT_EQ(Value{int32_t{50}}, property(*model, "a").initial);
    EXPECT_FALSE(property(*model, "a").max);
    EXPECT_EQ(5U, model->commands.find(0x1401)->second.latencyMs);
    EXPECT_EQ(2U, model->commands.size());
}

TEST_F(BoardLoader, RefusesAnOverrideOfWhatTheBoardDoesntHave) {
    write("board.json", R"({"name": "base"})");
    write("over.json",
          "{\"properties\": {\n\"b\": {\"type\": \"i32\", \"initial\": 1}},\n"
          "\"commands\": {\n\"CMD_NONE\": {}}}");
    EXPECT_THAT(problems("over.json"),
                ElementsAre("over.json:4: unknown command 'CMD_NONE'",
                            "over.json:2: property 'b' is not in the board, and no command of "
                            "the override uses it"));
    EXPECT_THAT(problems("none.json"),
                ElementsAre("none.json: can't be read: No such file or directory"));
}

TEST(DefaultBoardPath, IsTheEnvironmentsOrTheBuiltInOne) {
    unsetenv("TARN_BOARD");
    EXPECT_TRUE(std::filesystem::is_regular_file(defaultBoardPath()));
    setenv("TARN_BOARD", "/my/board.json", 1);
    EXPECT_EQ("/my/board.json", defaultBoardPath());
    unsetenv("TARN_BOARD");
}

}  // namespace tarn::simulator
