// The rows of the list of hits, read from the report when they are seen: there may be as many as a
// list can hold.
#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QString>

namespace qor {

class TextFinder;

class HitListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  // Rows that the list has at most.
  static constexpr int kMostRows = 100'000;

  explicit HitListModel(TextFinder& finder);

  // The parts of a row's text.
  struct Row {
    QString page;
    QString before;
    QString hit;
    QString behind;

    QString text() const { return page + '\t' + before + hit + behind; }
  };
  Row row(int index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  // Takes the hits of the finder as they are now.
  void update();
  void clear();

 private:
  TextFinder& finder_;
  int count_ = 0;
  mutable QCache<int, Row> rows_;
};

}  // namespace qor
