#include "core/forms/frmHelp.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHelpContentWidget>
#include <QHelpIndexModel>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLineEdit>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/forms/Help.h"
#include "platform/dialogs/Desktop.h"
#include "platform/qt/Icons.h"
#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"

namespace core::forms {

namespace {

QUrl PageUrl(const QString& topic) {
    return QUrl(QStringLiteral("qthelp://vestrel/help/%1.html").arg(topic));
}

constexpr const char* kStamp = "vestrel/stamp";

} // namespace

HelpPage::HelpPage(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {
    setAccessibleName(tr("Help page"));
    constexpr int kMargin = 16;
    document()->setDocumentMargin(kMargin);
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    const QUrl url = name.isRelative() ? source().resolved(name) : name;
    if (url.scheme() == QLatin1String("qthelp")) return engine_.fileData(url);
    return QTextBrowser::loadResource(type, name);
}

void HelpPage::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) {
        platform::TheDesktop().OpenWebPage(platform::qt::FromScreen(url.toString()));
        return;
    }
    QTextBrowser::doSetSource(url, type);
}

/// The colour of a link is fixed when a page is read.
void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && source().isValid()) reload();
}

frmHelp::frmHelp(const QString& file, const QString& cacheFolder, QWidget* parent)
    : Form(parent),
      engine_(cacheFolder + QStringLiteral("/help.qhc")),
      page_(new HelpPage(engine_, this)),
      ways_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("Vestrel Help"));
    engine_.setReadOnly(false);
    engine_.setUsesFilterEngine(true);
    RegisterFile(file);

    ways_->addTab(engine_.contentWidget(), tr("C&ontents"));
    ways_->addTab(MakeIndex(), tr("&Index"));
    ways_->addTab(MakeSearch(), tr("&Search"));
    connect(engine_.contentWidget(), &QHelpContentWidget::linkActivated, page_,
            [this](const QUrl& link) { page_->setSource(link); });
    connect(engine_.contentModel(), &QHelpContentModel::contentsCreated, this,
            [this] { engine_.contentWidget()->expandAll(); });

    auto* const panes = new QSplitter(this);
    panes->addWidget(ways_);
    panes->addWidget(page_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({260, 560});
    auto* const all = new QVBoxLayout(this);
    all->addWidget(MakeToolBar());
    all->addWidget(panes, 1);
    resize(840, 600);
}

void frmHelp::Setup(const QString& topic) {
    page_->setSource(PageUrl(HasTopic(topic) ? topic : QStringLiteral("contents")));
    Open();
    if (isMinimized()) showNormal();
    raise();
    activateWindow();
    if (topic == QLatin1String(kHelpSearch)) {
        ways_->setCurrentIndex(ways_->count() - 1);
        engine_.searchEngine()->queryWidget()->setFocus();
    }
}

bool frmHelp::HasTopic(const QString& topic) const {
    return !engine_.fileData(PageUrl(topic)).isEmpty();
}

QString frmHelp::Topic() const {
    return QFileInfo(page_->source().path()).completeBaseName();
}

/// The collection identifies a help file by its path; a file that has changed since is registered
/// again.
void frmHelp::RegisterFile(const QString& file) {
    engine_.setupData();
    const QString stamp = file + QFileInfo(file).lastModified().toString(Qt::ISODateWithMs);
    if (engine_.customValue(QLatin1String(kStamp)).toString() == stamp) return;
    for (const QString& old : engine_.registeredDocumentations()) {
        engine_.unregisterDocumentation(old);
    }
    if (engine_.registerDocumentation(file)) {
        engine_.setCustomValue(QLatin1String(kStamp), stamp);
    }
    engine_.setupData();
}

QWidget* frmHelp::MakeIndex() {
    auto* const pane = new QWidget(this);
    auto* const rows = new QVBoxLayout(pane);
    auto* const find = new QLineEdit(pane);
    find->setPlaceholderText(tr("Look for a word"));
    find->setClearButtonEnabled(true);
    rows->addWidget(find);
    rows->addWidget(engine_.indexWidget());
    connect(find, &QLineEdit::textChanged, this,
            [this](const QString& word) { engine_.indexWidget()->filterIndices(word, {}); });
    connect(find, &QLineEdit::returnPressed, engine_.indexWidget(),
            &QHelpIndexWidget::activateCurrentItem);
    connect(engine_.indexWidget(), &QHelpIndexWidget::documentActivated, page_,
            [this](const QHelpLink& link) { page_->setSource(link.url); });
    connect(engine_.indexWidget(), &QHelpIndexWidget::documentsActivated, page_,
            [this](const QList<QHelpLink>& links) { page_->setSource(links.first().url); });
    return pane;
}

QWidget* frmHelp::MakeSearch() {
    QHelpSearchEngine* const search = engine_.searchEngine();
    auto* const pane = new QWidget(this);
    auto* const rows = new QVBoxLayout(pane);
    rows->addWidget(search->queryWidget());
    rows->addWidget(search->resultWidget(), 1);
    connect(search->queryWidget(), &QHelpSearchQueryWidget::search, this,
            [search] { search->search(search->queryWidget()->searchInput()); });
    connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, page_,
            [this](const QUrl& link) { page_->setSource(link); });
    search->reindexDocumentation();
    return pane;
}

QWidget* frmHelp::MakeToolBar() {
    auto* const bar = new QWidget(this);
    bar->setProperty(platform::qt::kTakesEveryPress, true);
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    const auto addButton = [&](const QString& icon, const QString& text, const QKeySequence& key) {
        auto* const button = new QToolButton(bar);
        button->setIcon(platform::qt::LoadIcon(icon));
        button->setText(text);
        button->setToolTip(text + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) +
                           QLatin1Char(')'));
        button->setShortcut(key);
        button->setAutoRaise(true);
        row->addWidget(button);
        return button;
    };
    auto* const back =
        addButton(QStringLiteral("back"), tr("Back"), QKeySequence(Qt::ALT | Qt::Key_Left));
    auto* const forward =
        addButton(QStringLiteral("forward"), tr("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right));
    auto* const home =
        addButton(QStringLiteral("home"), tr("First page"), QKeySequence(Qt::ALT | Qt::Key_Home));
    row->addStretch();
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QToolButton::clicked, page_, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, page_, &QTextBrowser::forward);
    connect(home, &QToolButton::clicked, page_,
            [this] { page_->setSource(PageUrl(QStringLiteral("contents"))); });
    connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    return bar;
}

} // namespace core::forms
