#include "client/platform/x11/x11_keymap.h"

#include <algorithm>
#include <bit>
#include <unordered_map>

#include "client/platform/x11/x11_connection.h"
#include "client/platform/x11/xkb_protocol.h"
#include "core/ansi.h"

namespace qf::client {

namespace {

constexpr xcb_keysym_t ReturnSymbol = 0xFF0D;

// Symbols of characters outside of Latin-1 that are older than the rule "the code point plus this".
constexpr xcb_keysym_t UnicodeSymbols = 0x01000000;

struct NamedSymbol {
    char32_t     character;
    xcb_keysym_t symbol;
};

// clang-format off
constexpr std::array NamedSymbols{
    NamedSymbol{0x0152, 0x13BC}, // OE
    NamedSymbol{0x0153, 0x13BD}, // oe
    NamedSymbol{0x0160, 0x01A9}, // S with caron
    NamedSymbol{0x0161, 0x01B9}, // s with caron
    NamedSymbol{0x0178, 0x13BE}, // Y with diaeresis
    NamedSymbol{0x017D, 0x01AE}, // Z with caron
    NamedSymbol{0x017E, 0x01BE}, // z with caron
    NamedSymbol{0x0192, 0x08F6}, // f with hook
    NamedSymbol{0x2013, 0x0AAA}, // en dash
    NamedSymbol{0x2014, 0x0AA9}, // em dash
    NamedSymbol{0x2018, 0x0AD0}, // left single quotation mark
    NamedSymbol{0x2019, 0x0AD1}, // right single quotation mark
    NamedSymbol{0x201A, 0x0AFD}, // low single quotation mark
    NamedSymbol{0x201C, 0x0AD2}, // left double quotation mark
    NamedSymbol{0x201D, 0x0AD3}, // right double quotation mark
    NamedSymbol{0x201E, 0x0AFE}, // low double quotation mark
    NamedSymbol{0x2020, 0x0AF1}, // dagger
    NamedSymbol{0x2021, 0x0AF2}, // double dagger
    NamedSymbol{0x2022, 0x0AE6}, // bullet
    NamedSymbol{0x2026, 0x0AAE}, // ellipsis
    NamedSymbol{0x2030, 0x0AD5}, // per mille
    NamedSymbol{0x20AC, 0x20AC}, // euro
    NamedSymbol{0x2122, 0x0AC9}, // trade mark
};
// clang-format on

constexpr unsigned FirstPrinted = 0x20;
constexpr unsigned DeleteCode = 0x7F;
constexpr unsigned LastControl = 0x9F;

constexpr bool IsLatin1(char32_t character)
{
    return (character >= FirstPrinted && character < DeleteCode) || (character > LastControl && character <= 0xFF);
}

/// The label of each symbol that may stand on a key for it.
std::unordered_map<xcb_keysym_t, std::uint16_t> LabelsOfSymbols()
{
    std::unordered_map<xcb_keysym_t, std::uint16_t> labels;
    for (std::uint16_t label = 0; label < LabelCount; ++label) {
        const xcb_keysym_t symbol = SymbolOf(label);
        if (symbol == XCB_NO_SYMBOL) {
            continue;
        }
        labels.emplace(symbol, label);
        if (label != ReturnLabel) {
            labels.emplace(UnicodeSymbols + core::AnsiToUnicode(static_cast<unsigned char>(label)), label);
        }
    }
    return labels;
}

constexpr unsigned MaximumLevels = 64;

/// The modifiers that lead to each level of a key type, nothing where none do.
using LevelStates = std::array<std::optional<std::uint8_t>, MaximumLevels>;

LevelStates StatesOfType(const xcb_xkb_key_type_t* type)
{
    // A state with a lock would be typed only while that lock is on in the client's eyes, and text typed
    // with Control is no text.
    constexpr unsigned Unfit = XCB_MOD_MASK_LOCK | XCB_MOD_MASK_CONTROL;

    LevelStates states;
    states[0] = 0;
    const auto* map = xcb_xkb_key_type_map(type);
    const auto  count = static_cast<std::size_t>(xcb_xkb_key_type_map_length(type));
    for (std::size_t i = 0; i < count; ++i) {
        const xcb_xkb_kt_map_entry_t& entry = map[i];
        if (entry.active == 0 || entry.level == 0 || entry.level >= MaximumLevels || (entry.mods_mask & Unfit) != 0) {
            continue;
        }
        auto& state = states[entry.level];
        if (!state || std::popcount(entry.mods_mask) < std::popcount(*state)) {
            state = entry.mods_mask;
        }
    }
    return states;
}

constexpr unsigned GroupShift = 13;
constexpr unsigned GroupCountMask = 0x0F;
constexpr unsigned MaximumGroups = 4;

/// Fills a keymap key by key, keeping the best stroke of each label.
class KeymapBuilder {
  public:
    KeymapBuilder(X11Keymap& keymap, std::vector<LevelStates> types, unsigned group)
        : keymap_(keymap), types_(std::move(types)), group_(group)
    {
        ranks_.fill(~0U);
    }

    void Add(xcb_keycode_t code, const xcb_xkb_key_sym_map_t* key)
    {
        const xcb_keysym_t* symbols = xcb_xkb_key_sym_map_syms(key);
        const auto          count = static_cast<std::size_t>(xcb_xkb_key_sym_map_syms_length(key));
        const unsigned      groups = std::min(key->groupInfo & GroupCountMask, MaximumGroups);
        if (std::all_of(symbols, symbols + count, [](xcb_keysym_t symbol) { return symbol == XCB_NO_SYMBOL; })) {
            keymap_.spare.push_back(code);
            return;
        }
        for (unsigned group = 0; group < groups; ++group) {
            if (key->kt_index[group] >= types_.size()) {
                continue;
            }
            const LevelStates& levels = types_[key->kt_index[group]];
            for (unsigned level = 0; level < std::min<unsigned>(key->width, MaximumLevels); ++level) {
                const std::size_t place = std::size_t{group} * key->width + level;
                if (place < count && levels[level]) {
                    Offer(symbols[place], code, group, *levels[level]);
                }
            }
        }
    }

  private:
    void Offer(xcb_keysym_t symbol, xcb_keycode_t code, unsigned group, std::uint8_t modifiers)
    {
        static const auto Labels = LabelsOfSymbols();

        const auto label = Labels.find(symbol);
        if (label == Labels.end()) {
            return;
        }
        constexpr unsigned OtherGroup = 16;
        const unsigned     rank = (group == group_ ? 0 : OtherGroup) + static_cast<unsigned>(std::popcount(modifiers));
        if (rank < ranks_[label->second]) {
            ranks_[label->second] = rank;
            keymap_.strokes[label->second] =
                KeyStroke{code, static_cast<std::uint16_t>(modifiers | group << GroupShift)};
        }
    }

    X11Keymap&                       keymap_;
    std::vector<LevelStates>         types_;
    unsigned                         group_;
    std::array<unsigned, LabelCount> ranks_{};
};

} // namespace

xcb_keysym_t SymbolOf(std::uint16_t label)
{
    if (label == ReturnLabel) {
        return ReturnSymbol;
    }
    const char32_t character = core::AnsiToUnicode(static_cast<unsigned char>(label));
    if (IsLatin1(character)) {
        return static_cast<xcb_keysym_t>(character);
    }
    if (character <= LastControl) {
        return XCB_NO_SYMBOL;
    }
    const auto named = std::find_if(NamedSymbols.begin(), NamedSymbols.end(),
                                    [character](const NamedSymbol& one) { return one.character == character; });
    return named != NamedSymbols.end() ? named->symbol : UnicodeSymbols + static_cast<xcb_keysym_t>(character);
}

X11Keymap LoadKeymap(xcb_connection_t* connection)
{
    constexpr std::uint16_t Parts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS;

    const auto mapRequest =
        xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD, Parts, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    const auto                             stateRequest = xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD);
    const Reply<xcb_xkb_get_map_reply_t>   map(xcb_xkb_get_map_reply(connection, mapRequest, nullptr));
    const Reply<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(connection, stateRequest, nullptr));

    X11Keymap keymap;
    if (!map || !state) {
        return keymap;
    }
    xcb_xkb_get_map_map_t parts{};
    xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(map.get()), map->nTypes, map->nKeySyms, map->nKeyActions,
                               map->totalActions, map->totalKeyBehaviors, map->virtualMods, map->totalKeyExplicit,
                               map->totalModMapKeys, map->totalVModMapKeys, map->present, &parts);

    std::vector<LevelStates> types;
    for (auto type = xcb_xkb_get_map_map_types_rtrn_iterator(map.get(), &parts); type.rem > 0;
         xcb_xkb_key_type_next(&type)) {
        types.push_back(StatesOfType(type.data));
    }

    KeymapBuilder builder(keymap, std::move(types), state->group);
    auto          code = static_cast<unsigned>(map->firstKeySym);
    for (auto key = xcb_xkb_get_map_map_syms_rtrn_iterator(map.get(), &parts); key.rem > 0 && code <= 0xFF;
         xcb_xkb_key_sym_map_next(&key), ++code) {
        builder.Add(static_cast<xcb_keycode_t>(code), key.data);
    }
    return keymap;
}

} // namespace qf::client
