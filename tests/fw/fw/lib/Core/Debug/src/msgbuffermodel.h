#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace corvane::test {

/** The rules of the debug message buffer, told with a list of what lies where in the area. */
class MsgBufferModel
{
public:
    struct Line
    {
        uint64_t offset = 0;
        uint64_t size = 0;
        std::string text;
    };

    explicit MsgBufferModel(uint64_t areaSize);

    /** The same result as the buffer's push. */
    bool push(std::string_view text);

    void reset() { lines.clear(); }

    /** Oldest first. */
    const std::deque<Line> &getLines() const { return lines; }

private:
    static constexpr uint64_t nowhere = ~uint64_t(0);

    uint64_t findPlace(uint64_t oldestOffset, uint64_t need) const;

    uint64_t areaSize = 0;
    std::deque<Line> lines;
};

/**
 * Does the same to the buffer and to the model and compares. The area lies between two margins that
 * must stay as they are; with a margin of 0 the area is a block of its own, which the address
 * sanitizer watches. Each operation returns what is wrong, or an empty text.
 */
class MsgBufferExercise
{
public:
    MsgBufferExercise() { setArea(0, 0, 0); }

    MsgBufferExercise(const MsgBufferExercise &) = delete;
    MsgBufferExercise &operator=(const MsgBufferExercise &) = delete;
    ~MsgBufferExercise();

    /** An area that begins \a misalignment bytes behind an 8-byte boundary. */
    std::string setArea(uint64_t size, uint64_t misalignment, uint64_t margin);
    std::string push(const std::string &text);
    std::string reset();
    /** Reads at most \a count lines. */
    std::string read(bool backwards, uint64_t count) const;
    /** Reads all lines as numbered ones, cut to \a outSize. */
    std::string dump(bool backwards, uint64_t outSize) const;
    std::string checkMargins() const;

private:
    const MsgBufferModel::Line *lineAt(uint64_t index, bool backwards) const;

    std::unique_ptr<char[]> block;
    uint64_t blockSize = 0;
    uint64_t areaOffset = 0; ///< In the block, before it is aligned up.
    uint64_t areaSize = 0;
    uint64_t firstOffset = 0; ///< In the block, of the first byte that the buffer may use.
    MsgBufferModel model{0};
};

} // namespace corvane::test
