#include "core/message.h"

#include <utility>

#include "core/product.h"

namespace qf::core {

Message PlainBox(std::string text)
{
    return {std::move(text), MessageStyle::Plain, std::nullopt};
}

Message InformationBox(std::string text)
{
    return {std::move(text), MessageStyle::Information, ProductTitle()};
}

Message UntitledInformationBox(std::string text)
{
    return {std::move(text), MessageStyle::Information, std::nullopt};
}

Message CriticalBox(std::string text)
{
    return {std::move(text), MessageStyle::Critical, ProductTitle()};
}

Message QuestionBox(std::string text)
{
    return {std::move(text), MessageStyle::Question, ProductTitle()};
}

} // namespace qf::core
