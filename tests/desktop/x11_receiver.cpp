// A window of the SDL library that stands in for the game client: it writes each line typed at it to a file.
//
// x11_receiver --log FILE [--title TEXT] [--frame MILLISECONDS] [--without-ping]
//
// --frame keeps the window busy for a time after each look at its events, as drawing does.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <SDL.h>

namespace {

struct Options {
    std::string log;
    std::string title = "ClassicUO - Receiver";
    Uint32      frame = 0;
    bool        ping = true;
};

Options ReadOptions(int count, char** texts)
{
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view name = texts[i];
        if (name == "--without-ping") {
            options.ping = false;
            continue;
        }
        if (i + 1 == count) {
            break;
        }
        const char* value = texts[++i];
        if (name == "--log") {
            options.log = value;
        } else if (name == "--title") {
            options.title = value;
        } else if (name == "--frame") {
            options.frame = static_cast<Uint32>(std::strtoul(value, nullptr, 10));
        }
    }
    return options;
}

int Run(const Options& options, std::FILE* log)
{
    SDL_Window* window = SDL_CreateWindow(options.title.c_str(), SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, 320,
                                          200, SDL_WINDOW_SHOWN);
    if (window == nullptr) {
        std::fprintf(stderr, "%s\n", SDL_GetError());
        return EXIT_FAILURE;
    }
    SDL_StartTextInput();

    std::string line;
    for (;;) {
        SDL_Event event;
        for (int more = SDL_WaitEvent(&event); more != 0; more = SDL_PollEvent(&event)) {
            if (event.type == SDL_QUIT) {
                SDL_DestroyWindow(window);
                return EXIT_SUCCESS;
            }
            if (event.type == SDL_TEXTINPUT) {
                line += event.text.text;
            } else if (event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_RETURN) {
                line += '\n';
                std::fputs(line.c_str(), log);
                line.clear();
            }
        }
        std::fflush(log);
        if (options.frame > 0) {
            SDL_Delay(options.frame);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    const Options options = ReadOptions(argc, argv);
    if (options.log.empty()) {
        std::fputs("--log FILE is needed\n", stderr);
        return EXIT_FAILURE;
    }
    if (!options.ping) {
        SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_PING, "0");
    }
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        std::fprintf(stderr, "%s\n", SDL_GetError());
        return EXIT_FAILURE;
    }
    std::FILE* log = std::fopen(options.log.c_str(), "wb");
    const int  code = log != nullptr ? Run(options, log) : EXIT_FAILURE;
    if (log != nullptr) {
        std::fclose(log);
    }
    SDL_Quit();
    return code;
}
