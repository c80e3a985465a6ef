#include "bench/list/RowList.h"

#include "bench/QuickStage.h"

namespace quorix::bench {
namespace {

constexpr char kList[] = R"(
    import QtQuick
    import QuorixBench
    import QuorixWidgets
    ListView {
      property int taken: 0
      width: parent.width; height: parent.height; spacing: 8; cacheBuffer: 0
      delegate: %1
        required property var modelData
        width: ListView.view.width
        Component.onCompleted: ++ListView.view.taken
        ListView.onReused: ++ListView.view.taken
      }
    })";
constexpr const char* kRows[] = {
    R"(ScoreWidget {
        clientId: "my-shop"; locale: "en"; token: modelData.token)",
    R"(LeanScoreRow {
        title: modelData.title; fee: modelData.fee; baseFee: modelData.baseFee
        label: modelData.label; hint: modelData.hint; ink: modelData.ink; faded: modelData.faded)",
    R"(Item {
        height: 17)",
};

}  // namespace

RowList::RowList(Rows rows) {
  engine_.addImportPath("qrc:/");
  component_.setData(QByteArray(kList).replace("%1", kRows[static_cast<int>(rows)]), {});
}

std::unique_ptr<QQuickItem> RowList::make(QQuickItem& parent, const std::vector<Shopper>& shoppers,
                                          bool reuse) {
  QVariantList model;
  for (const Shopper& shopper : shoppers) {
    QVariantMap row = shopper.properties();
    row.insert("token", QString::fromStdString(shopper.token));
    model.append(row);
  }
  return std::unique_ptr<QQuickItem>(
      create(component_,
             {{"parent", QVariant::fromValue(&parent)}, {"reuseItems", reuse}, {"model", model}}));
}

}  // namespace quorix::bench
