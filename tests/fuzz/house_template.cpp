#include <cstdlib>
#include <sstream>

#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "world/template_build.h"
#include "world/text_lines.h"

namespace {

using qf::core::ServerGeneration;

/// Takes the effects of a build and aborts at one that no template can have.
class CheckingOutlet final : public qf::core::Outlet {
  public:
    explicit CheckingOutlet(ServerGeneration generation) : generation_(generation) {}

    void Send(std::string_view command, bool usePrefix) override
    {
        if (!usePrefix) {
            Require(command.starts_with("Good lord, I'm building a ") ||
                    command.starts_with("Wow, I could describe this as "));
            return;
        }
        const bool known = generation_.Is070() || generation_.Is09();
        Require(command.starts_with(generation_.Is070() ? "tilew " : known ? "tile " : " "));
        // The last fields are the numbers, with one blank before each; an id may hold anything.
        for (int field = known ? 5 : 2; field > 0; --field) {
            const auto blank = command.rfind(' ');
            Require(blank != std::string_view::npos);
            const auto text = command.substr(blank + 1);
            Require(qf::core::ToText(qf::core::ToInteger32(text)) == text);
            command = command.substr(0, blank);
        }
        Require(known || command.empty());
    }

    void Show(const qf::core::Message& message) override
    {
        Require(message.text.starts_with("You have a bad ") && message.style == qf::core::MessageStyle::Critical);
    }

    bool Ask(const qf::core::Message&) override { std::abort(); }

  private:
    static void Require(bool holds)
    {
        if (!holds) {
            std::abort();
        }
    }

    ServerGeneration generation_;
};

} // namespace

// Whatever a template holds, a build sends well-formed lines, complains, or ends with a type error or an overflow.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (const auto generation : {qf::core::Generation070, qf::core::Generation09, ServerGeneration(std::int16_t{7})}) {
        std::stringbuf       bytes(text);
        qf::world::TextLines lines(bytes, 16);
        CheckingOutlet       outlet(generation);
        try {
            qf::world::BuildTemplateLines(lines, {1000, -2000, 2'147'483'000}, generation, outlet);
        } catch (const qf::core::RuntimeError& error) {
            if (error.Number() != qf::core::error::TypeMismatch && error.Number() != qf::core::error::Overflow) {
                std::abort();
            }
        }
    }
    return 0;
}
