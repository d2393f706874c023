#pragma once

#include <QLineEdit>
#include <cstddef>
#include <string>
#include <string_view>

#include "ui/parts.h"

namespace qf::ui {

/// A text box and the field of a record that holds its text.
template <class State>
struct BoxField {
    std::string_view box;
    std::string State::*text;
};

/// Takes the texts of the boxes that lie on `parent` into the record.
template <class State, std::size_t Count>
void ReadBoxes(const BoxField<State> (&fields)[Count], const QWidget& parent, State& state)
{
    for (const auto& field : fields) {
        state.*field.text = Utf8(parent.findChild<QLineEdit*>(Text(field.box))->text());
    }
}

/// Shows the texts of the record in the boxes that lie on `parent`. A box that shows its text already is left alone,
/// and so is its cursor.
template <class State, std::size_t Count>
void ShowBoxes(const BoxField<State> (&fields)[Count], const QWidget& parent, const State& state)
{
    for (const auto& field : fields) {
        auto*      box = parent.findChild<QLineEdit*>(Text(field.box));
        const auto text = Text(state.*field.text);
        if (box->text() != text) {
            box->setText(text);
        }
    }
}

} // namespace qf::ui
