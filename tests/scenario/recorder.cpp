#include "scenario/recorder.h"

#include <utility>

namespace qf::scenario {

void Recorder::Text(std::string_view name, std::string_view text)
{
    Add({{std::string(name), false}, {std::string(text), true}});
}

void Recorder::Add(Words line)
{
    if (!shut_) {
        lines_.push_back(std::move(line));
    }
}

std::vector<Words> Recorder::Take()
{
    return std::exchange(lines_, {});
}

} // namespace qf::scenario
