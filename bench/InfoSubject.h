#pragma once

#include <QString>
#include <cstdint>

#include "bench/Subject.h"

namespace quorix::bench {

/// The info widget in one of its forms. Its texts are always the same.
class InfoSubject final : public Subject {
 public:
  enum class Form : std::uint8_t { declarative, imperative };

  explicit InfoSubject(Form form);

  swiftui::View ours() const override;
  QVariantMap properties() const override;
  QWidget* labels(QWidget* parent) const override;

  QString title;        ///< the words alone
  QString styledTitle;  ///< with the figure in bold, as both toolkits' marked-up text
  QString link;

 private:
  Form form_;
};

}  // namespace quorix::bench
