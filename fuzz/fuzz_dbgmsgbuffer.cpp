// Reads the input as steps of the debug message buffer and compares with the model after each.

#include "fuzzinput.h"
#include "msgbuffermodel.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

using corvane::fuzz::Input;

namespace {

std::string doStep(corvane::test::MsgBufferExercise &exercise, Input &input)
{
    const unsigned choice = input.takeByte();
    const bool backwards = (choice & 8) != 0;
    switch (choice % 8) {
    case 0:
        return exercise.setArea(input.takeWord(), choice >> 5, (choice & 16) * 4);
    case 1:
        return exercise.reset();
    case 2:
        return exercise.read(backwards, ~uint64_t(0));
    case 3:
        return exercise.dump(backwards, 2 + input.takeByte());
    case 4:
        return exercise.push(std::string(input.takeWord() % 4096, 'l'));
    default:
        return exercise.push(std::string(input.takeByte(), static_cast<char>('a' + choice % 26)));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    Input input(bytes, count);
    corvane::test::MsgBufferExercise exercise;
    while (!input.isEmpty()) {
        std::string wrong = doStep(exercise, input);
        if (wrong.empty())
            wrong = exercise.read(false, ~uint64_t(0));
        if (wrong.empty())
            continue;
        std::fprintf(stderr, "%s\n", wrong.c_str());
        std::abort();
    }
    if (!exercise.checkMargins().empty())
        std::abort();
    return 0;
}
