#pragma once

#include <deque>
#include <map>
#include <utility>

namespace android::host::dbus {

/**
 * Things that wait, each for somebody: they take turns, and what is one's keeps its order. Has no
 * lock of its own.
 */
template <typename Whose, typename T>
class Turns {
  public:
    void add(const Whose& whose, T thing) {
        std::deque<T>& line = mLines[whose];
        if (line.empty()) mOrder.push_back(whose);
        line.push_back(std::move(thing));
    }

    bool empty() const { return mOrder.empty(); }

    /** The first thing of the one whose turn it is; there must be one. */
    T take() {
        const Whose whose = mOrder.front();
        mOrder.pop_front();
        const auto line = mLines.find(whose);
        T next = std::move(line->second.front());
        line->second.pop_front();
        if (line->second.empty()) {
            mLines.erase(line);
        } else {
            mOrder.push_back(whose);
        }
        return next;
    }

    /** Has the one whose turn it just was take a further one, if there is more. */
    void repeat(const Whose& whose) {
        if (mOrder.empty() || mOrder.back() != whose) return;
        mOrder.pop_back();
        mOrder.push_front(whose);
    }

    /** Takes out all that is one's. */
    std::deque<T> remove(const Whose& whose) {
        const auto line = mLines.find(whose);
        if (line == mLines.end()) return {};
        std::deque<T> things = std::move(line->second);
        mLines.erase(line);
        for (auto turn = mOrder.begin(); turn != mOrder.end(); ++turn) {
            if (*turn != whose) continue;
            mOrder.erase(turn);
            break;
        }
        return things;
    }

  private:
    std::map<Whose, std::deque<T>> mLines;  // none is empty
    std::deque<Whose> mOrder;               // each that has a line, once
};

}  // namespace android::host::dbus
