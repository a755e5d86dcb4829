#pragma once

#include "uxQt4ExtGlobal.h"

#include <QDataWidgetMapper>

/**
 * A data-widget mapper that commits combo boxes and buttons the moment they
 * change, instead of when the user leaves them. Combo boxes map through their
 * entries' Qt::UserRole data (see QUxDataWidgetMapperItemDelegate).
 * @code
 * auto* mapper = new QUxDataWidgetMapper(panel);
 * mapper->setModel(materials);
 * mapper->addMapping(shaderCombo, ShaderColumn); // entries carry shader ids as UserRole data
 * mapper->addMapping(visibleCheck, VisibleColumn);
 * mapper->toFirst();
 * @endcode
 */
class UXQT4EXT_EXPORT QUxDataWidgetMapper : public QDataWidgetMapper
{
    Q_OBJECT
public:
    explicit QUxDataWidgetMapper(QWidget* parent = nullptr);
    ~QUxDataWidgetMapper() override;

    void addMapping(QWidget* widget, int section);
    void addMapping(QWidget* widget, int section, const QByteArray& property);

    /// Makes a combo box commit on every text change and a button on every toggle.
    void changeEndEditPolicy(QWidget* widget);
    /// Moves the focus out of @p widget and back, which commits its value.
    void setChanged(QWidget* widget);
};
