#include <SDL.h>

#include <cstddef>
#include <exception>
#include <iostream>
#include <span>

#include "practice/options.h"
#include "practice/practice_client.h"

int main(int argc, char* argv[])
{
    constexpr int Failure = 1;
    constexpr int UsageFault = 2;
    try {
        const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
        const qf::practice::Options        options =
            qf::practice::ParseOptions(arguments.empty() ? arguments : arguments.subspan(1));
        if (options.help) {
            std::cout << qf::practice::UsageText();
            return 0;
        }
        qf::practice::PracticeClient client(options);
        client.Run();
        return 0;
    } catch (const qf::practice::UsageError& error) {
        std::cerr << "quernfield-practice: " << error.what() << "\nTry quernfield-practice --help.\n";
        return UsageFault;
    } catch (const std::exception& error) {
        std::cerr << "quernfield-practice: " << error.what() << "\n";
        return Failure;
    }
}
