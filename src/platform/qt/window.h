// The window of one form.
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>
#include <memory>
#include <vector>

#include "platform/forms/form.h"
#include "platform/qt/look.h"
#include "platform/qt/menubar.h"
#include "platform/qt/view.h"

namespace zelko {

class PageLayout;

class FormWindow : public QWidget {
 public:
  explicit FormWindow(Form& form);
  ~FormWindow() override;

  // Null once the form is gone; the window lives on until no frame of Qt stands in it any more.
  Form* form() const { return form_; }
  View* viewOf(const Control& control) const;
  // The view that a widget, or one of its parents up to this window, belongs to.
  View* viewAt(const QWidget* widget) const;

  // Shows the window: at the left top where it has a menu, below `above` where it is shown beside another, else where
  // the desktop puts it.
  void reveal(bool modal, FormWindow* above);
  void focusOn(const Control* control);
  void push(Control& control, Property property);
  void captionChanged();
  void menuChanged() {
    if (menu_) menu_->refresh();
  }
  void openMenu(const MenuEntry& entry);
  MenuBar* menu() const { return menu_.get(); }
  void forget();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void build();
  QSize room() const;
  QSize fittingSize() const;
  void takeSize(QSize size);
  void growSoon();
  void showPlace(const QRect& place);
  void follow(FormWindow& above);
  void placeBelow();
  void keepWithin(int height);

  Form* form_;
  std::vector<std::unique_ptr<View>> views_;
  std::unique_ptr<MenuBar> menu_;
  QScrollArea* scroll_ = nullptr;
  QWidget* page_ = nullptr;
  PageLayout* rows_ = nullptr;
  FocusFrame* frame_ = nullptr;
  QPointer<FormWindow> above_;  // the one that it stands below
  int tallest_ = QWIDGETSIZE_MAX;
  bool growing_ = false;
};

}  // namespace zelko
