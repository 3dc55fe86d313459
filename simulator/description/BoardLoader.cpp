#include "simulator/description/BoardLoader.h"

#include <set>
#include <utility>

#include "protocol/Catalog.h"
#include "simulator/description/BoardSources.h"
#include "simulator/description/CommandReader.h"
#include "simulator/description/PropertyReader.h"
#include "values/JsonError.h"
#include "values/Value.h"

namespace tarn::simulator {

using values::JsonError;
using values::looksAlike;

namespace {

constexpr char kCompleteBoard[] = "default";

class Loader {
  public:
    Loader(const std::string& path, const std::string& overridePath)
        : mSources(path, overridePath, &mProblems) {}

    std::shared_ptr<const BoardModel> load() {
        readProperties();
        readCommands();
        readLists();
        checkNewProperties();
        checkSharedCodes();
        if (mSources.name() == kCompleteBoard) checkEveryRow();
        if (!mProblems.empty()) throw BoardFileError(std::move(mProblems));
        mModel.name = mSources.name();
        mModel.properties = std::move(mProperties.list);
        return std::make_shared<BoardModel>(std::move(mModel));
    }

  private:
    void readProperties() {
        for (const auto& [name, source] : mSources.properties()) {
            try {
                Property property = readProperty(name, *source.json);
                mProperties.byName.emplace(name, mProperties.list.size());
                mProperties.list.push_back(std::move(property));
            } catch (const JsonError& e) {
                addProblem(source, e);
                mProperties.refused.insert(name);
            }
        }
    }

    void readCommands() {
        for (const auto& [name, source] : mSources.commands()) {
            const protocol::Command* row = protocol::findCommand(name);
            if (row == nullptr) {
                addProblem(source, "unknown command '" + name + "'");
                continue;
            }
            try {
                CommandDescription command = readCommand(*row, *source.json, &mProperties);
                noteUses(command, source);
                mModel.commands.emplace(row->code, std::move(command));
            } catch (const JsonError& e) {
                addProblem(source, e);
            }
        }
    }

    /** After the commands, which say what the lists' records are. */
    void readLists() {
        for (Property& property : mProperties.list) {
            if (property.field.type != protocol::Type::kList) continue;
            const Source& source = mSources.properties().at(property.name);
            try {
                readInitialList(*source.json, &property);
            } catch (const JsonError& e) {
                addProblem(source, e);
            }
        }
    }

    /**
     * A property that only the override has is a mistyped name unless one of the override's
     * commands uses it.
     */
    void checkNewProperties() {
        for (const auto& [name, source] : mSources.properties()) {
            if (!source.isOverride || mSources.replaces(name)) continue;
            if (mUsedByOverride.count(name) == 0) {
                addProblem(source, "property '" + name +
                                           "' is not in the board, and no command of the "
                                           "override uses it");
            }
        }
    }

    /** Two commands that can't be told apart by their bytes have to do the same. */
    void checkSharedCodes() {
        for (auto first = mModel.commands.begin(); first != mModel.commands.end(); ++first) {
            for (auto second = std::next(first);
                 second != mModel.commands.end() && second->first == first->first; ++second) {
                checkPair(first->second, second->second);
            }
        }
    }

    void checkPair(const CommandDescription& first, const CommandDescription& second) {
        if (!looksAlike(first.request, second.request)) return;
        const Source& source = mSources.commands().at(second.row->name);
        if (*mSources.commands().at(first.row->name).json == *source.json) return;
        addProblem(source, "'" + std::string(first.row->name) + "' and '" + second.row->name +
                                   "' share their code and look alike, so that both need the same "
                                   "description");
    }

    void checkEveryRow() {
        for (const std::string& controller : protocol::controllers()) {
            std::string missing;
            for (const protocol::Command& row : protocol::commands()) {
                if (controller == row.controller && mSources.commands().count(row.name) == 0) {
                    missing += std::string(" ") + row.name;
                }
            }
            if (missing.empty()) continue;
            mProblems.push_back(
                    {mSources.mainFile()->path(), 0,
                     "commands of " + controller + " without a description:" + missing});
        }
    }

    void noteUses(const CommandDescription& command, const Source& source) {
        if (!source.isOverride) return;
        for (const Assignment& set : command.sets) noteUse(set.property);
        noteUses(command.status);
        for (const Expression& field : command.reply) noteUses(field);
        if (!command.event) return;
        for (const Expression& field : command.event->data) noteUses(field);
    }

    void noteUses(const Expression& expression) {
        if (expression.kind == Expression::Kind::kProperty) noteUse(expression.source);
        for (const std::vector<Expression>& record : expression.records) {
            for (const Expression& field : record) noteUses(field);
        }
    }

    void noteUse(size_t property) { mUsedByOverride.insert(mProperties.list[property].name); }

    void addProblem(const Source& source, const JsonError& error) {
        mProblems.push_back(
                Problem{source.file->path(), source.file->lineAt(error.offset()), error.what()});
    }

    void addProblem(const Source& source, const std::string& reason) {
        mProblems.push_back(source.file->problemAt(*source.json, reason));
    }

    std::vector<Problem> mProblems;
    const BoardSources mSources;
    PropertyTable mProperties;
    std::set<std::string> mUsedByOverride;
    BoardModel mModel;
};

}  // namespace

std::shared_ptr<const BoardModel> loadBoard(const std::string& path,
                                            const std::string& overridePath) {
    return Loader(path, overridePath).load();
}

}  // namespace tarn::simulator
