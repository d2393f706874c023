#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "app/program_on_stage.h"
#include "documents/markdown.h"
#include "ui/panel.h"
#include "ui/parts.h"

// The guide's walk is walked: each row of its tables is done on the real panels, by the captions that a reader sees
// there, and the lines that it promises are those that are typed.

namespace qf {
namespace {

using Lines = std::vector<std::string>;

const std::map<std::string, std::string> panelNames{
    {"Main panel", "frmMain"}, {"Floors", "frmFloors"},   {"Walls", "frmWalls"}, {"Roofs", "frmRoof"},
    {"Stairs", "frmStairs"},   {"Forests", "frmForests"}, {"Items", "frmItems"}, {"Wipe", "frmWipe"},
};

/// The chapters of the guide that are walked, those that end before the one about live shards.
Lines Walk()
{
    const auto all = test::LinesOf(std::filesystem::path(QF_DOCUMENTS) / "docs/guide.md");
    const auto begin = std::ranges::find(all, "## Your first floor");
    const auto end = std::ranges::find(begin, all.end(), "## On a live shard");
    if (begin == all.end() || end == all.end()) {
        throw std::runtime_error("the guide has no walk");
    }
    return {begin, end};
}

[[noreturn]] void Refuse(const std::string& field, const std::string& value, const char* why)
{
    throw std::runtime_error(field + ": " + value + ": " + why);
}

/// Works the fields of a panel by what is written beside them.
class Reader {
  public:
    explicit Reader(ui::Panel& panel) : panel_(panel)
    {
        if (!panel.isVisible()) {
            throw std::runtime_error(std::string(panel.Name()) + " is not open");
        }
    }

    void Do(const std::string& field, const std::string& value)
    {
        if (value == "-") {
            return;
        }
        if (field == "Press") {
            Press<QPushButton>(field, value, panel_, nullptr);
        } else if (field == "Tab") {
            Turn(value);
        } else if (auto* box = BoxOf(field)) {
            if (!box->isEnabled()) {
                Refuse(field, value, "the box is grey");
            }
            box->setFocus();
            box->setText(ui::Text(value));
        } else if (auto* frame = FrameOf(field)) {
            Press<QAbstractButton>(field, value, *frame, nullptr);
        } else {
            Press<QAbstractButton>(field, value, panel_, HeadingOf(field));
        }
        QApplication::processEvents();
    }

  private:
    template <typename Widget, typename Predicate>
    Widget* Shown(const QWidget& among, Predicate fits) const
    {
        for (auto* widget : among.findChildren<Widget*>()) {
            if (widget->isVisible() && fits(*widget)) {
                return widget;
            }
        }
        return nullptr;
    }

    QLineEdit* BoxOf(const std::string& field) const
    {
        const auto* label = Shown<QLabel>(panel_, [&](const QLabel& each) {
            return each.text() == ui::Text(field) && qobject_cast<QLineEdit*>(each.buddy()) != nullptr;
        });
        return label == nullptr ? nullptr : qobject_cast<QLineEdit*>(label->buddy());
    }

    QGroupBox* FrameOf(const std::string& field) const
    {
        return Shown<QGroupBox>(panel_, [&](const QGroupBox& each) { return each.title() == ui::Text(field); });
    }

    QLabel* HeadingOf(const std::string& field) const
    {
        return Shown<QLabel>(panel_, [&](const QLabel& each) { return each.text() == ui::Text(field); });
    }

    /// What is written on a button, or else beside it.
    QString Caption(const QAbstractButton& button) const
    {
        auto caption = button.text();
        if (caption.isEmpty()) {
            const auto* label = Shown<QLabel>(panel_, [&](const QLabel& each) { return each.buddy() == &button; });
            caption = label == nullptr ? QString() : label->text();
        }
        return caption.remove(QLatin1Char('&')).trimmed();
    }

    void Turn(const std::string& value)
    {
        for (auto* tabs : panel_.findChildren<QTabWidget*>()) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                if (tabs->tabText(tab) == ui::Text(value)) {
                    tabs->setCurrentIndex(tab);
                    return;
                }
            }
        }
        Refuse("Tab", value, "no such tab");
    }

    /// Below a heading it is the first button with this caption, elsewhere the only one.
    template <typename Button>
    void Press(const std::string& field, const std::string& value, const QWidget& among, const QLabel* heading)
    {
        Button*    found = nullptr;
        const auto height = [this](const QWidget& widget) { return widget.mapTo(&panel_, QPoint(0, 0)).y(); };
        for (auto* button : among.findChildren<Button*>()) {
            if (!button->isVisible() || Caption(*button) != ui::Text(value) ||
                (heading != nullptr && height(*button) < height(*heading))) {
                continue;
            }
            if (found != nullptr && heading == nullptr) {
                Refuse(field, value, "there are two");
            }
            if (found == nullptr || height(*button) < height(*found)) {
                found = button;
            }
        }
        if (found == nullptr) {
            Refuse(field, value, "not to be seen");
        }
        if (!found->isEnabled()) {
            Refuse(field, value, "grey");
        }
        found->click();
    }

    ui::Panel& panel_;
};

class Walker {
  public:
    Walker() { EXPECT_TRUE(stage_.application->Main()); }

    void Read(const std::string& line)
    {
        const auto cells = test::Cells(line);
        if (cells.empty()) {
            heading_.clear();
            ReadPromise(line);
        } else if (heading_.empty()) {
            heading_ = cells;
        } else if (!test::IsRule(cells)) {
            ReadRow(cells);
        }
    }

    int Rows() const { return rows_; }
    int Promises() const { return promises_; }

    const Lines& Boxes() const { return stage_.services.boxes; }

  private:
    ui::Panel& Panel(const std::string& name)
    {
        auto* panel = stage_.application->Context().panels.Loaded(panelNames.at(name));
        if (panel == nullptr) {
            throw std::runtime_error(name + " is not open");
        }
        return *panel;
    }

    void ReadRow(const Lines& cells)
    {
        ++rows_;
        if (heading_.front() == "Panel") {
            panel_ = cells.at(0);
            Reader(Panel(panel_)).Do(cells.at(1), cells.at(2));
            return;
        }
        for (std::size_t column = 0; column < cells.size(); ++column) {
            Reader(Panel(panel_)).Do(heading_.at(column), cells[column]);
        }
    }

    void ReadPromise(const std::string& line)
    {
        if (line == "```text") {
            promised_.emplace();
        } else if (line == "```") {
            ++promises_;
            EXPECT_EQ(stage_.platform.TakeLines(), *promised_);
            promised_.reset();
        } else if (promised_) {
            promised_->push_back(line);
        }
    }

    test::ProgramOnStage stage_;
    Lines                heading_;
    std::string          panel_;
    std::optional<Lines> promised_;
    int                  rows_ = 0;
    int                  promises_ = 0;
};

TEST(GuideWalk, TypesWhatTheGuidePromises)
{
    Walker walker;
    for (const auto& line : Walk()) {
        SCOPED_TRACE(line);
        ASSERT_NO_THROW({
            try {
                walker.Read(line);
            } catch (const std::exception& failure) {
                ADD_FAILURE() << failure.what();
                throw;
            }
        });
    }
    EXPECT_EQ(walker.Boxes(), Lines());
    EXPECT_GT(walker.Rows(), 90);
    EXPECT_GE(walker.Promises(), 8);
}

} // namespace
} // namespace qf
