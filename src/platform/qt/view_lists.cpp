// Lists: the view asks the model for the entries that it shows, so that 20,000 of them cost nothing.
#include <QAbstractListModel>
#include <QComboBox>
#include <QFontMetrics>
#include <QListView>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>

#include "platform/forms/form.h"
#include "platform/forms/lists.h"
#include "platform/qt/guard.h"
#include "platform/qt/look.h"
#include "platform/qt/qstring.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

class Entries : public QAbstractListModel {
 public:
  Entries(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!list_ || role != Qt::DisplayRole || index.row() >= list_->count()) return {};
    return toQt(list_->entries()[static_cast<std::size_t>(index.row())]);
  }
  void reload() {
    beginResetModel();
    count_ = list_ ? list_->count() : 0;
    endResetModel();
  }
  void detach() {
    list_ = nullptr;
    reload();
  }

 private:
  const ListBox* list_;
  int count_ = 0;
};

class TallList : public QListView {
 public:
  TallList(const ListBox& list, QWidget* parent) : QListView(parent), list_(&list) {}
  void detach() { list_ = nullptr; }
  // As wide as the first of its entries, within bounds.
  QSize sizeHint() const override {
    constexpr int kColumns = 24, kMostColumns = 64, kRows = 8, kEntriesLookedAt = 100;
    const QFontMetrics metrics = fontMetrics();
    const int digit = metrics.horizontalAdvance(u'0');
    int widest = 0;
    for (int at = 0; list_ && at < std::min(list_->count(), kEntriesLookedAt); ++at)
      widest = std::max(widest, metrics.horizontalAdvance(toQt(list_->entries()[static_cast<std::size_t>(at)])));
    const int edge = verticalScrollBar()->sizeHint().width() + metrics.height() / 2;
    return {std::clamp(widest + edge, digit * kColumns, digit * kMostColumns), metrics.lineSpacing() * kRows};
  }
  QSize minimumSizeHint() const override {
    return {fontMetrics().horizontalAdvance(u'0') * 12, fontMetrics().lineSpacing() * 3};
  }

 private:
  const ListBox* list_;
};

// A list is often filled entry by entry: the view takes everything over once, when events run again.
struct Taking {
  bool entries = false, waiting = false;
};

void takeOver(TallList& shown, Entries& entries, const ListBox& list, Taking& taking) {
  taking.waiting = false;
  if (taking.entries) entries.reload();
  taking.entries = false;
  const QModelIndex current = entries.index(list.listIndex());
  shown.setCurrentIndex(current);
  if (current.isValid()) shown.scrollTo(current);
}

void clicked(ListBox& list, int row) {
  guarded([&list, row] {
    if (!screen().takesInput(list.form())) return;
    if (row == list.listIndex()) return list.click();
    list.setFocus();
    if (list.hasFocus()) list.setListIndex(row);
  });
}

}  // namespace

void makeListView(View& view, QWidget* parent) {
  auto& list = static_cast<ListBox&>(view.control);
  auto* shown = new TallList(list, parent);
  shown->setFont(evenlySpaced(shown->font()));
  auto* entries = new Entries(list, shown);
  shown->setModel(entries);
  shown->setUniformItemSizes(true);
  shown->setEditTriggers(QAbstractItemView::NoEditTriggers);
  shown->setFocusPolicy(Qt::ClickFocus);
  view.widget = shown;
  const auto taking = std::make_shared<Taking>();
  view.push = [&list, shown, entries, taking](Property property) {
    if (property != Property::entries && property != Property::listIndex) return;
    taking->entries |= property == Property::entries;
    if (taking->waiting) return;
    taking->waiting = true;
    QTimer::singleShot(0, shown, [&list, shown, entries, taking] {
      if (shown->model()) takeOver(*shown, *entries, list, *taking);
    });
  };
  view.detach = [shown, entries] {
    shown->detach();
    entries->detach();
    shown->setModel(nullptr);
  };
  QObject::connect(shown, &QListView::clicked, shown, [&list](const QModelIndex& at) { clicked(list, at.row()); });
  QObject::connect(shown, &QListView::doubleClicked, shown, [&list] {
    guarded([&list] {
      if (screen().takesInput(list.form())) list.doubleClick();
    });
  });
}

void makeComboView(View& view, QWidget* parent) {
  auto& list = static_cast<ListBox&>(view.control);
  auto* combo = new QComboBox(parent);
  combo->setFocusPolicy(Qt::ClickFocus);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  view.widget = combo;
  view.push = [&list, combo](Property property) {
    if (property == Property::entries) {
      QStringList texts;
      for (const Text& entry : list.entries()) texts << toQt(entry);
      combo->clear();
      combo->addItems(texts);
    }
    if (property == Property::entries || property == Property::listIndex) combo->setCurrentIndex(list.listIndex());
  };
  QObject::connect(combo, &QComboBox::activated, combo, [&list](int row) { clicked(list, row); });
}

}  // namespace zelko
