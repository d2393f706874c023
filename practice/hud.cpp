#include "practice/hud.h"

#include <algorithm>
#include <string>

#include "practice/font.h"

namespace qf::practice {

namespace {

constexpr int  Lines = 8;
constexpr int  Margin = 10;
constexpr int  LineHeight = GlyphHeight * 2 + 3;
constexpr int  StatusHeight = GlyphHeight + 10;
constexpr int  TypedHeight = LineHeight + 8;
constexpr int  Gap = 6;
constexpr Argb BandColour = 0x90101820U;
constexpr Argb TypedBand = 0xB0182430U;
constexpr Argb StatusBand = 0xE0101418U;
constexpr Argb StatusColour = 0xFFC8D0D8U;
constexpr Argb TypedColour = 0xFFFFFFFFU;
constexpr Argb HintColour = 0xFFFFE070U;

Argb ColourOf(ChatEntry::Kind kind)
{
    switch (kind) {
    case ChatEntry::Kind::Command: return 0xFFE8ECF0U;
    case ChatEntry::Kind::Speech: return 0xFF9FC4E8U;
    case ChatEntry::Kind::Answer: return 0xFFF0C860U;
    }
    return TypedColour;
}

/// The part of the text's end that fits a width: what has just been typed is what must be seen.
std::string_view EndThatFits(std::string_view text, int width)
{
    while (TextWidth(text, 2) > width) {
        NextCharacter(text);
    }
    return text;
}

} // namespace

int HudHeight()
{
    return StatusHeight + TypedHeight + Lines * LineHeight + Gap;
}

void DrawHud(Canvas& canvas, const Session& session, std::string_view typed, bool cutAway)
{
    const int width = canvas.Width();
    const int statusTop = canvas.Height() - StatusHeight;
    const int typedTop = statusTop - TypedHeight;

    const auto& entries = session.Entries();
    const int   shown = static_cast<int>(std::min<std::size_t>(entries.size(), Lines));
    if (shown > 0) {
        const int top = typedTop - shown * LineHeight - Gap;
        canvas.FillRectangle(0, top, width, typedTop - top, BandColour);
        for (int i = 0; i < shown; ++i) {
            const ChatEntry& entry = entries[entries.size() - static_cast<std::size_t>(shown - i)];
            canvas.Text(Margin, top + 4 + i * LineHeight, entry.text, ColourOf(entry.kind), 2);
        }
    }

    canvas.FillRectangle(0, typedTop, width, TypedHeight, TypedBand);
    const int              room = width - 2 * Margin - 3 * GlyphAdvance * 2;
    const std::string_view end = EndThatFits(typed, room);
    canvas.Text(Margin, typedTop + 6, ">", StatusColour, 2);
    const int start = Margin + 2 * GlyphAdvance * 2;
    canvas.Text(start, typedTop + 6, end, TypedColour, 2);
    canvas.FillRectangle(start + TextWidth(end, 2), typedTop + 4, 2, GlyphHeight * 2, TypedColour);

    canvas.FillRectangle(0, statusTop, width, StatusHeight, StatusBand);
    const Position&   at = session.Player();
    const std::string place =
        "X " + std::to_string(at.x) + "  Y " + std::to_string(at.y) + "  Z " + std::to_string(at.z);
    const std::string state = place + "   Tiles " + std::to_string(session.GetWorld().Count()) + "   Lines " +
                              std::to_string(session.LinesReceived()) + (cutAway ? "   Roofs hidden" : "");
    canvas.Text(Margin, statusTop + 6, state, StatusColour, 1);
    const std::string      hint = session.Hint();
    const std::string_view keys =
        hint.empty() ? std::string_view("Wheel zooms   Arrows scroll   Home centres   F2 hides roofs") : hint;
    const int keysLeft = width - Margin - TextWidth(keys, 1);
    if (keysLeft > Margin + TextWidth(state, 1) + Margin) {
        canvas.Text(keysLeft, statusTop + 6, keys, hint.empty() ? StatusColour : HintColour, 1);
    }
    if (!hint.empty()) {
        const int left = (width - TextWidth(hint, 2)) / 2;
        canvas.FillRectangle(left - Margin, 12, TextWidth(hint, 2) + 2 * Margin, LineHeight + 8, BandColour);
        canvas.Text(left, 18, hint, HintColour, 2);
    }
}

} // namespace qf::practice
