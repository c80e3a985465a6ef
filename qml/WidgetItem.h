#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <optional>
#include <string>

#include "platform/swiftui/View.h"
#include "qt/quick/ViewItem.h"

namespace quorix::qml {

/// What every widget of the QML module is: an item with an implicit size that its anchors, layouts
/// and positioners place like a `Text`. It is as wide as its words where it is given no width, and
/// goes on to further lines in a narrower one; its height follows. It has no height when there is
/// nothing to show.
///
/// The properties of the widget make it anew, in its place: what is changed in one go makes one
/// widget, before the next frame, which begins afresh: its sheet closed, its texts fetched again.
/// Those of its surroundings (`appearance` and below) are followed by the widget as it stands.
/// Main thread.
class WidgetItem : public quorix::qt::ViewItem {
  Q_OBJECT
  QML_ANONYMOUS

  /// A language code ("en", "es"), used as it is: a tag with a region reads English. Empty for the
  /// language of Qt's default locale as it is when the widget is made.
  Q_PROPERTY(
      QString locale READ locale WRITE setLocale RESET resetLocale NOTIFY localeChanged FINAL)
  /// Faces of the app's own, by PostScript or family name, which follow the user's text size; empty
  /// for the widget's, which keep theirs.
  Q_PROPERTY(QString regularFont READ regularFont WRITE setRegularFont RESET resetRegularFont NOTIFY
                 regularFontChanged FINAL)
  Q_PROPERTY(QString semiBoldFont READ semiBoldFont WRITE setSemiBoldFont RESET resetSemiBoldFont
                 NOTIFY semiBoldFontChanged FINAL)

  Q_PROPERTY(Appearance appearance READ appearance WRITE setAppearance RESET resetAppearance NOTIFY
                 appearanceChanged FINAL)
  /// `Qt.LayoutDirectionAuto`, which it is at first, is the application's.
  Q_PROPERTY(Qt::LayoutDirection layoutDirection READ layoutDirection WRITE setLayoutDirection RESET
                 resetLayoutDirection NOTIFY layoutDirectionChanged FINAL)
  /// The user's text size, which faces of the app's own follow.
  Q_PROPERTY(TextSize textSize READ textSize WRITE setTextSize RESET resetTextSize NOTIFY
                 textSizeChanged FINAL)
  /// Whether sheets move where the user has nothing against it.
  Q_PROPERTY(bool animated READ animated WRITE setAnimated NOTIFY animatedChanged FINAL)

 public:
  /// `System` follows the desktop.
  enum Appearance { System, Light, Dark };
  Q_ENUM(Appearance)

  /// `SystemTextSize` follows the desktop where it tells the user's text size.
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

  QString locale() const { return locale_; }
  void setLocale(const QString& locale);
  void resetLocale() { setLocale({}); }
  QString regularFont() const { return regularFont_; }
  void setRegularFont(const QString& face);
  void resetRegularFont() { setRegularFont({}); }
  QString semiBoldFont() const { return semiBoldFont_; }
  void setSemiBoldFont(const QString& face);
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
  /// A fresh widget from the library's builder.
  virtual swiftui::View widget() const = 0;

  /// What the builders take: the language in force, and the faces where there are any.
  std::string language() const;
  std::optional<std::string> regularFace() const { return nonEmpty(regularFont_); }
  std::optional<std::string> semiBoldFace() const { return nonEmpty(semiBoldFont_); }

  /// Gives `value`, which the widget is made of, another value. Whether it was another.
  template <class Value>
  bool replace(Value& value, const Value& replacement) {
    if (value == replacement) return false;
    value = replacement;
    makeAnew();
    return true;
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
  bool stale_ = false;  ///< a property was changed since the widget was made
};

}  // namespace quorix::qml
