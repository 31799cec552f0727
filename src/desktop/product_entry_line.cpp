#include "desktop/product_entry_line.h"

#include "core/localized.h"
#include "desktop/icons.h"
#include "desktop/list_delegate.h"
#include "desktop/measures.h"
#include "desktop/product_matches_model.h"
#include "desktop/theme.h"
#include "documents/product_document_view_controller.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolTip>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr std::size_t foundAtMost = 100;
constexpr int shownAtOnce = 10;
constexpr int narrowest = 320;
constexpr int widest = 560;

} // namespace

ProductEntryLine::ProductEntryLine(ProductDocumentViewController& form, QWidget* parent)
    : QLineEdit(parent), m_form(form), m_model(new ProductMatchesModel(form, this))
{
    setObjectName(u"productEntry"_s);
    setAccessibleName(localized("Add a product by its name"));
    setPlaceholderText(localized("Type a product…"));
    setFrame(false);
    setAcceptDrops(false); // the sheet takes what is dropped
    addAction(lineIcon(u"add"_s), QLineEdit::LeadingPosition)->setText(localized("Add"));
    connect(this, &QLineEdit::textEdited, this, &ProductEntryLine::showMatches);
}

ProductEntryLine::~ProductEntryLine()
{
    delete m_list;
}

void ProductEntryLine::makeList()
{
    m_list = new QTableView(window());
    connect(m_list, &QObject::destroyed, this, [this] { m_list = nullptr; });
    m_list->setObjectName(u"productMatches"_s);
    m_list->setAccessibleName(localized("Products of that name"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::Box);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new ListDelegate(m_list));
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setShowGrid(false);
    m_list->setWordWrap(false);
    m_list->horizontalHeader()->hide();
    m_list->verticalHeader()->hide();
    m_list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_list->verticalHeader()->setDefaultSectionSize(listRowHeight(fontMetrics()));
    m_list->horizontalHeader()->setSectionResizeMode(ProductMatchesModel::Name, QHeaderView::Stretch);
    m_list->setColumnHidden(ProductMatchesModel::Stock, !m_form.stockFromEnabled());
    connect(m_list, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& index) { take(index.row()); });
}

void ProductEntryLine::showMatches(const QString& typed)
{
    m_model->setProducts(m_form.productFinder().find(typed, foundAtMost));
    paintUnknown(false);
    if (m_model->rowCount() == 0) {
        hideList();
        paintUnknown(!typed.trimmed().isEmpty());
        return;
    }
    if (!m_list)
        makeList();
    m_list->selectRow(0);
    placeList();
    m_list->show();
    m_list->raise();
}

// Below the line, or above it where the window ends.
void ProductEntryLine::placeList()
{
    const QFontMetrics metrics = fontMetrics();
    const int numbers = metrics.horizontalAdvance(u"0 000 000.00"_s) + 2 * measures::rowPadding;
    m_list->horizontalHeader()->resizeSection(ProductMatchesModel::Stock, numbers);
    m_list->horizontalHeader()->resizeSection(ProductMatchesModel::Price, numbers);
    const int rows = std::min(m_model->rowCount(), shownAtOnce);
    const int height = rows * m_list->verticalHeader()->defaultSectionSize() + 2 * m_list->frameWidth();
    const QPoint corner = mapTo(window(), QPoint(0, 0));
    const bool below = corner.y() + this->height() + height <= window()->height();
    const int width = std::clamp(this->width(), narrowest, widest);
    m_list->setGeometry(corner.x(), below ? corner.y() + this->height() : corner.y() - height, width, height);
}

// A row came above: the line moved down.
void ProductEntryLine::followLine()
{
    if (m_list && m_list->isVisible())
        placeList();
}

void ProductEntryLine::hideList()
{
    if (m_list)
        m_list->hide();
}

void ProductEntryLine::paintUnknown(bool unknown)
{
    QPalette colors = palette();
    const QPalette plain = QGuiApplication::palette();
    colors.setColor(QPalette::Text, unknown ? textColor(redColor, plain) : plain.color(QPalette::Text));
    setPalette(colors);
    setToolTip(unknown ? localized("No product of that name can be taken here.") : QString());
}

bool ProductEntryLine::isDone()
{
    if (text().trimmed().isEmpty())
        return true;
    setFocus(Qt::OtherFocusReason);
    showMatches(text());
    const QString hint =
        m_model->rowCount() > 0 ? localized("Enter takes the product, Escape empties the line.") : toolTip();
    QToolTip::showText(mapToGlobal(QPoint(0, 0)), hint, this);
    return false;
}

void ProductEntryLine::moveChoice(int step)
{
    const int row = std::clamp(m_list->currentIndex().row() + step, 0, m_model->rowCount() - 1);
    m_list->selectRow(row);
    m_list->scrollTo(m_model->index(row, 0));
}

void ProductEntryLine::take(int row)
{
    const std::shared_ptr<Product> product = m_model->product(row);
    hideList();
    clear();
    Q_EMIT productTyped(product);
}

void ProductEntryLine::keyPressEvent(QKeyEvent* event)
{
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    const bool open = m_list && m_list->isVisible();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (plain && enter && open) {
        take(m_list->currentIndex().row());
    } else if (plain && enter && !text().trimmed().isEmpty()) {
        showMatches(text());
        if (m_model->rowCount() == 0)
            QToolTip::showText(mapToGlobal(QPoint(0, height())), toolTip(), this);
    } else if (plain && open && (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)) {
        moveChoice(event->key() == Qt::Key_Down ? 1 : -1);
    } else if (plain && event->key() == Qt::Key_Up) {
        Q_EMIT leftUpwards();
    } else if (plain && event->key() == Qt::Key_Escape && !text().isEmpty()) {
        if (open)
            hideList();
        else
            clear();
        paintUnknown(false);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void ProductEntryLine::focusOutEvent(QFocusEvent* event)
{
    hideList();
    QLineEdit::focusOutEvent(event);
}

void ProductEntryLine::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    followLine();
}

void ProductEntryLine::moveEvent(QMoveEvent* event)
{
    QLineEdit::moveEvent(event);
    followLine();
}

} // namespace zelvor
