#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>
#include <set>
#include <vector>

class QCheckBox;
class QGridLayout;
class QUxCollapsibleFramePrivate;

/**
 * The grouping box of property panels: a slim header (an optional tristate
 * check box and a bold caption) above a stack of pages. Releasing the mouse on
 * the header folds the pages away or opens them again.
 * @code
 * auto* frame = new QUxCollapsibleFrame(tr("Lighting"), false, panel);
 * auto* page = new QWidget;
 * auto* grid = new QGridLayout(page);
 * grid->addWidget(new QLabel(tr("Intensity")), 0, 0);
 * grid->addWidget(new QUxDoubleSpiner, 0, 1);
 * frame->addPage(page);
 * connect(frame, &QUxCollapsibleFrame::toggled, this, &Panel::rememberFolding);
 * QUxCollapsibleFrame::fixLayouts(panel, 120, nullptr); // label columns line up across frames
 * @endcode
 * `toggled` is emitted on every collapse request, changed or not.
 */
class UXQT4EXT_EXPORT QUxCollapsibleFrame : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(Qt::Alignment captionAlignment READ captionAlignment WRITE setCaptionAlignment)
    Q_PROPERTY(bool collapsed READ isCollapsed WRITE setCollapsed NOTIFY toggled)
    Q_PROPERTY(bool headerCheckBoxVisibile READ isHeaderCheckBoxVisible WRITE setHeaderCheckBoxVisible)
    Q_PROPERTY(bool frameVisibile READ isFrameVisible WRITE setFrameVisible)
public:
    // The LED's colours and shapes, value for value; int-based so that any
    // integer arriving through a property is a value of the type.
    enum LedColor : int { RED = 0, GREEN, YELLOW, GREY, ORANGE, PURPLE, BLUE, BLACK, WHITE };
    Q_ENUM(LedColor)
    enum LedShape : int { CIRCLE = 0, SQUARE, TRIANGLE, ROUNDED, TRIANGLE_R };
    Q_ENUM(LedShape)

    explicit QUxCollapsibleFrame(QWidget* parent = nullptr);
    explicit QUxCollapsibleFrame(const QString& caption, bool collapsed = false, QWidget* parent = nullptr);
    ~QUxCollapsibleFrame() override;

    QString caption() const;
    Qt::Alignment captionAlignment() const;
    bool isCollapsed() const;
    void setCollapsible(bool value);
    bool isCollapsible() const;
    bool isFrameVisible() const;

    void setHeaderCheckBoxVisible(bool value);
    bool isHeaderCheckBoxVisible() const;
    QCheckBox* headerCheckBox() const;

    void addPage(QWidget* page);
    void insertPage(int index, QWidget* page);
    void removePage(int index);
    int count() const;
    int currentIndex() const;
    QWidget* widget(int index) const;

    QString pageTitle() const;
    void setPageTitle(const QString& title);

    bool ledValue() const;
    LedColor ledOnColor() const;
    LedColor ledOffColor() const;
    LedShape ledOnShape() const;
    LedShape ledOffShape() const;

    /// Every collapsible frame below @p root, at any depth (not @p root itself).
    static void findCollapsibleFrames(QObject* root, std::set<QUxCollapsibleFrame*>& out);
    /// Every grid layout below @p root, at any depth.
    static void findGridLayouts(QObject* root, std::set<QGridLayout*>& out);
    /// Gives the label columns of every grid layout below @p root, except those in @p exclude,
    /// the minimum width @p width (scaled by the display): columns 0 and 1 of grids with three
    /// or more columns, column 0 of two-column grids.
    static void fixLayouts(QWidget* root, int width, std::vector<QGridLayout*>* exclude);
    /// The same for the own layout of @p widget, when it is a grid.
    static void fixLayout(QWidget* widget, int width);

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void setCaption(const QString& value);
    void setCaptionAlignment(Qt::Alignment align);
    void setCollapsed(bool value);
    void setFrameVisible(bool value);
    void setCurrentIndex(int index);
    void setLedValue(bool value);
    void setLedOnColor(LedColor value);
    void setLedOffColor(LedColor value);
    void setLedOnShape(LedShape value);
    void setLedOffShape(LedShape value);

signals:
    void stateChanged(int state);
    void currentIndexChanged(int index);
    void pageTitleChanged(const QString& title);
    void toggled(bool on);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private slots:
    void finishedAnimation();

private:
    void setupUi();

    std::unique_ptr<QUxCollapsibleFramePrivate> const d;
};
