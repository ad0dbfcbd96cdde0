#pragma once

#include "toolkit/OrvPickerSearch.h"

#include <QAbstractListModel>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <string>

namespace velmora {

/// One wheel of a picker as QML turns it: Wheel.qml draws it.
class WheelModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that shows it")
    Q_PROPERTY(QString name READ name CONSTANT) ///< what a screen reader calls it
    Q_PROPERTY(int selected READ selected NOTIFY selectedChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectedChanged)

public:
    /// Where the rows come from and what a choice does.
    struct Source {
        QString name;
        std::function<int()> rowCount;
        std::function<std::string(int)> text; ///< of a row
        std::function<int()> selected;
        std::function<void(int)> select;
        std::function<QUrl(int)> picture; ///< of a row; none where it is left out
    };
    enum Role { TextRole = Qt::UserRole + 1, PictureRole };

    explicit WheelModel(Source source);

    QString name() const { return m_source.name; }
    int selected() const { return m_source.selected(); }
    QString selectedText() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The wheel has come to rest on a row.
    Q_INVOKABLE void select(int row);
    /// The row for a typed character; -1 for none.
    Q_INVOKABLE int rowForTyped(const QString& character);

    /// The rows have changed.
    void reload();
    /// The selected row may have changed, and how many there are, but none of their texts.
    void refresh();

Q_SIGNALS:
    void selectedChanged();
    /// Right before and after the rows are exchanged; in between the wheel must not choose.
    void aboutToReload();
    void reloaded();

private:
    Source m_source;
    int m_rowCount = 0;
    OrvPickerSearch m_search;
};

} // namespace velmora
