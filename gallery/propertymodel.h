// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/QQmlProperty>
#include <QtQml/qqmlregistration.h>

/*!
    The properties of a control that runs, found by looking at it: those that its type declares, then some
   that it inherits. Each can be changed by steps, as the keys of a remote ask for. Sizes, fonts, and maps and
   lists of colours take a row for each of their parts.
*/
class PropertyModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT

    //! The name of the control's type in QML.
    Q_PROPERTY(QString typeName READ typeName WRITE setTypeName NOTIFY typeNameChanged FINAL)
    //! Where the control is looked for: this object and all below it. A singleton needs no sample.
    Q_PROPERTY(QObject *sample READ sample WRITE setSample NOTIFY sampleChanged FINAL)
    //! The control found; null for none.
    Q_PROPERTY(QObject *control READ control NOTIFY controlChanged FINAL)
    //! What colours step through.
    Q_PROPERTY(QList<QColor> palette READ palette WRITE setPalette NOTIFY paletteChanged FINAL)
    Q_PROPERTY(int count READ rowCount NOTIFY controlChanged FINAL)

public:
    enum Role { NameRole = Qt::UserRole, KindRole, ValueRole, ColorRole, WritableRole };
    //! What a row holds, and so how it steps.
    enum Kind { Bool, Integer, Real, Choice, Color, String, List };
    Q_ENUM(Kind)

    using QAbstractListModel::QAbstractListModel;

    QString typeName() const;
    void setTypeName(const QString &name);
    QObject *sample() const;
    void setSample(QObject *sample);
    QObject *control() const;
    QList<QColor> palette() const;
    void setPalette(const QList<QColor> &palette);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    //! Changes a row by a number of steps, forward or back; rows that cannot be written stay.
    Q_INVOKABLE void change(int row, int steps);

Q_SIGNALS:
    void typeNameChanged();
    void sampleChanged();
    void controlChanged();
    void paletteChanged();

private Q_SLOTS:
    void updateSender();

private:
    struct Option
    {
        QString name;
        QVariant value;
    };

    struct Row
    {
        QString name;
        Kind kind;
        QQmlProperty property;
        //! Of choices and strings.
        QList<Option> options;
        //! Of a colour in a map, or its number in a list.
        QString key;
    };

    void rebuild();
    void addProperty(const QString &path);
    void addRow(const QString &name, Kind kind, const QQmlProperty &property,
        const QList<Option> &options = {}, const QString &key = {});
    void addColors(const QQmlProperty &property);
    QList<Option> texts(const QQmlProperty &property) const;
    QList<Option> choices(const QQmlProperty &property) const;
    static QVariant value(const Row &row);
    static bool isWritable(const Row &row);
    static void write(const Row &row, const QVariant &value);
    static QString toText(const Row &row);
    QVariant stepped(const Row &row, int steps) const;

    QString m_typeName;
    QPointer<QObject> m_sample;
    QPointer<QObject> m_control;
    QList<QColor> m_palette;
    QList<Row> m_rows;
};
