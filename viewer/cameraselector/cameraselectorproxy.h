#pragma once

#include <QAbstractProxyModel>
#include <QCollator>
#include <QTimer>
#include <QVector>

namespace Viewer::CameraSelector {

class CCameraSelectorModel;

/// The cameras in the order of a column and with a text in any of their columns. The layers stay in
/// their order; those without a camera to show are left out while there is a text.
///
/// Changes of single cameras are passed on at once, but order and selection are made anew only once
/// for all changes that come together, so that many cost as much as one. Whatever changes the rows
/// is a reset.
class CCameraSelectorProxy : public QAbstractProxyModel
{
    Q_OBJECT

public:
    /// @p source is borrowed and outlives this object.
    explicit CCameraSelectorProxy(CCameraSelectorModel &source, QObject *parent = nullptr);
    ~CCameraSelectorProxy() override;

    /// Shows the cameras that have @p text in one of their columns, whatever its case; empty: all.
    void setFilter(const QString &text);
    [[nodiscard]] QString getFilter() const;

    /// How many cameras are shown.
    [[nodiscard]] int getCameraCount() const;

    /// Orders the cameras of each layer by @p column, with numbers in texts by their value, and the
    /// source's order between equals; -1: the source's order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    [[nodiscard]] QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    [[nodiscard]] QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    /// One layer that is shown.
    struct CLayer
    {
        int sourceRow = 0;
        QVector<int> sourceRows; ///< of the cameras that are shown, in their order

        bool operator==(const CLayer &other) const;
    };

    [[nodiscard]] QVector<CLayer> arrange() const;
    [[nodiscard]] QVector<int> arrangeCameras(const QModelIndex &sourceLayer) const;
    [[nodiscard]] bool isAccepted(const QModelIndex &sourceCamera) const;
    void rearrange();
    void take(const QVector<CLayer> &layers);
    void onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                       const QVector<int> &roles);

    CCameraSelectorModel &m_source;
    QCollator m_collator;
    QTimer m_rearrangeTimer;
    QString m_filter;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QVector<CLayer> m_layers;
    QVector<int> m_layerRows; ///< by the source's row: the row here, or -1
    QVector<QVector<int>> m_cameraRows; ///< by the source's rows of layer and camera: the same
};

} // namespace Viewer::CameraSelector
