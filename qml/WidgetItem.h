#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <optional>
#include <string>
#include <utility>

#include "platform/swiftui/View.h"
#include "qt/quick/ViewItem.h"

namespace quorix::qml {

/// The base of the module's widgets: an item with an implicit size, which anchors, layouts and
/// positioners place like a `Text`. Without a width it is as wide as its texts. In a smaller width
/// it breaks them into lines, and its height follows. With nothing to show, it has no height.
///
/// A change of the widget's own properties replaces the widget before the next frame. Several
/// changes at once make one new widget, which starts fresh: its sheet is closed and its texts are
/// fetched again. A change of the settings (`appearance` and below) keeps the widget. Main thread.
class WidgetItem : public quorix::qt::ViewItem {
  Q_OBJECT
  QML_ANONYMOUS

  /// A language code ("en", "es"), used unchanged: a tag with a region falls back to English. If
  /// empty, the language of Qt's default locale at the time when the widget is made.
  Q_PROPERTY(
      QString locale MEMBER locale_ WRITE setLocale RESET resetLocale NOTIFY localeChanged FINAL)
  /// The app's own faces, by PostScript or family name. They scale with the user's text size. If
  /// empty, the library's faces are used, which do not scale.
  Q_PROPERTY(QString regularFont MEMBER regularFont_ WRITE setRegularFont RESET resetRegularFont
                 NOTIFY regularFontChanged FINAL)
  Q_PROPERTY(QString semiBoldFont MEMBER semiBoldFont_ WRITE setSemiBoldFont RESET resetSemiBoldFont
                 NOTIFY semiBoldFontChanged FINAL)

  Q_PROPERTY(Appearance appearance READ appearance WRITE setAppearance RESET resetAppearance NOTIFY
                 appearanceChanged FINAL)
  /// The default, `Qt.LayoutDirectionAuto`, is the application's direction.
  Q_PROPERTY(Qt::LayoutDirection layoutDirection READ layoutDirection WRITE setLayoutDirection RESET
                 resetLayoutDirection NOTIFY layoutDirectionChanged FINAL)
  /// The user's text size. Only the app's own faces scale with it.
  Q_PROPERTY(TextSize textSize READ textSize WRITE setTextSize RESET resetTextSize NOTIFY
                 textSizeChanged FINAL)
  /// Whether sheets move, if the user's settings allow motion.
  Q_PROPERTY(bool animated READ animated WRITE setAnimated NOTIFY animatedChanged FINAL)

 public:
  /// `System` follows the desktop.
  enum Appearance { System, Light, Dark };
  Q_ENUM(Appearance)

  /// `SystemTextSize` follows the desktop if that has a text size setting.
  enum TextSize {
    SystemTextSize = -1,
    ExtraSmall,
    Small,
    Medium,
    Large,
    ExtraLarge,
    ExtraExtraLarge,
    ExtraExtraExtraLarge,
    AccessibilityMedium,
    AccessibilityLarge,
    AccessibilityExtraLarge,
    AccessibilityExtraExtraLarge,
    AccessibilityExtraExtraExtraLarge,
  };
  Q_ENUM(TextSize)

  explicit WidgetItem(QQuickItem* parent = nullptr) : ViewItem(parent) {}

  void setLocale(const QString& locale) { replace(locale_, locale, &WidgetItem::localeChanged); }
  void resetLocale() { setLocale({}); }
  void setRegularFont(const QString& face) {
    replace(regularFont_, face, &WidgetItem::regularFontChanged);
  }
  void resetRegularFont() { setRegularFont({}); }
  void setSemiBoldFont(const QString& face) {
    replace(semiBoldFont_, face, &WidgetItem::semiBoldFontChanged);
  }
  void resetSemiBoldFont() { setSemiBoldFont({}); }

  Appearance appearance() const;
  void setAppearance(Appearance appearance);
  void resetAppearance() { setAppearance(System); }
  Qt::LayoutDirection layoutDirection() const;
  void setLayoutDirection(Qt::LayoutDirection direction);
  void resetLayoutDirection() { setLayoutDirection(Qt::LayoutDirectionAuto); }
  TextSize textSize() const;
  void setTextSize(TextSize size);
  void resetTextSize() { setTextSize(SystemTextSize); }
  bool animated() const;
  void setAnimated(bool animated);

 signals:
  void localeChanged();
  void regularFontChanged();
  void semiBoldFontChanged();
  void appearanceChanged();
  void layoutDirectionChanged();
  void textSizeChanged();
  void animatedChanged();

 protected:
  /// Makes a new widget with the library's builder.
  virtual swiftui::View widget() const = 0;

  /// The arguments for the builders: the current language, and the faces if they are set.
  std::string language() const;
  std::optional<std::string> regularFace() const { return nonEmpty(regularFont_); }
  std::optional<std::string> semiBoldFace() const { return nonEmpty(semiBoldFont_); }

  /// Assigns `now` to `value`, a property that makes a new widget, and emits `changed`.
  template <class Value, class Widget>
  void replace(Value& value, const Value& now, void (Widget::*changed)()) {
    if (std::exchange(value, now) == now) return;
    makeAnew();
    (static_cast<Widget*>(this)->*changed)();
  }

  void componentComplete() override;
  void updatePolish() override;

 private:
  static std::optional<std::string> nonEmpty(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
  }
  void makeAnew();
  void make();

  QString locale_;
  QString regularFont_;
  QString semiBoldFont_;
  bool stale_ = false;  ///< a property changed after the widget was made
};

}  // namespace quorix::qml
