#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace qf::ui {

/// A control array of options of which at most one is selected. The options may lie on several tabs or in
/// several frames: they are one group all the same.
class OptionArray {
  public:
    /// The members are children of the panel's widgets; the group itself belongs to `owner`.
    OptionArray(QWidget& owner, std::string_view name);
    OptionArray(const OptionArray&) = delete;
    OptionArray& operator=(const OptionArray&) = delete;

    const std::string& Name() const { return name_; }

    /// Makes the member with this index.
    QRadioButton& Add(int index, std::string_view caption, QWidget* parent);

    /// The index of the selected member, the lowest where several could be, -1 where none is.
    int Selected() const;

    /// Selects a member, which runs the handler as the user's click does.
    void Select(int index);

    /// Leaves no member selected.
    void Clear();

    void SetEnabled(bool enabled);

    QRadioButton& At(int index) const { return *members_.at(index); }
    bool          Has(int index) const { return members_.contains(index); }

    const std::map<int, QRadioButton*>& Members() const { return members_; }

    /// Runs with the index of a member whenever that member becomes the selected one.
    std::function<void(int)> onSelect;

  private:
    std::string                  name_;
    QButtonGroup*                group_;
    std::map<int, QRadioButton*> members_;
};

/// The documented name of a member of a control array: "optFloorType(4)".
QString MemberName(std::string_view array, int index);

} // namespace qf::ui
