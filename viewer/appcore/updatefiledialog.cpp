#include "updatefiledialog.h"

#include "viewer/camerapool/camerapool.h"
#include "viewer/text/visibletext.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"

#include "camerapool/icameraenumerationservice.h"
#include "core/richtext.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QUrl>

#include <array>

namespace Viewer::AppCore {

using CameraPool::CCameraVerdict;
using CameraPool::EVerdict;
using Text::shorten;
using UpdateFile::CUpdateEntry;

namespace {

enum EColumn { NameColumn, FirmwareColumn, EffectColumn };

constexpr QSize WHOLE_SIZE(720, 520);
constexpr int MAXIMUM_LENGTH = 200; // characters of what a file says, within a line

/// How many cameras there are of each verdict.
using Counts = std::array<int, static_cast<std::size_t>(EVerdict::NotNow) + 1>;

int &getCount(Counts &counts, EVerdict verdict)
{
    return counts[static_cast<std::size_t>(verdict)];
}

QString describe(Counts counts)
{
    QStringList parts;
    if (const int count = getCount(counts, EVerdict::Upgrade))
        parts.append(CUpdateFileDialog::tr("%n upgrade(s)", nullptr, count));
    if (const int count = getCount(counts, EVerdict::Downgrade))
        parts.append(CUpdateFileDialog::tr("%n downgrade(s)", nullptr, count));
    if (const int count = getCount(counts, EVerdict::Reinstall))
        parts.append(CUpdateFileDialog::tr("%n reinstallation(s)", nullptr, count));
    if (const int count = getCount(counts, EVerdict::NotNow))
        parts.append(CUpdateFileDialog::tr("%n not now", nullptr, count));
    return parts.join(QStringLiteral(", "));
}

QString describe(const CCameraVerdict &verdict)
{
    switch (verdict.verdict) {
    case EVerdict::Upgrade:
        return CUpdateFileDialog::tr("Upgrade");
    case EVerdict::Downgrade:
        return CUpdateFileDialog::tr("Downgrade");
    case EVerdict::Reinstall:
        return CUpdateFileDialog::tr("Reinstallation");
    case EVerdict::NotNow:
        return CUpdateFileDialog::tr("Not now: %1").arg(verdict.reason);
    case EVerdict::DoesNotFit:
        break;
    }
    return {};
}

/// Rich text of release notes, which may be such a text, lines, or an address.
QString toRichText(const QString &notes)
{
    if (Core::Text::isWebLink(notes.trimmed()))
        return QStringLiteral("<a href=\"%1\">%1</a>").arg(notes.trimmed().toHtmlEscaped());
    if (Qt::mightBeRichText(notes))
        return Core::Text::toSafeRichText(notes);
    return notes.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

} // namespace

CUpdateFileDialog::CUpdateFileDialog(const CameraPool::CCameraPool &pool, QAction *updateAction,
                                     QWidget *parent)
    : CListFrame(tr("Update file"), new QTreeWidget, parent)
    , m_pool(pool)
    , m_updateAction(updateAction)
    , m_tree(static_cast<QTreeWidget *>(getView()))
    , m_entryBrowser(new QTextBrowser(this))
    , m_readingBar(new QProgressBar(this))
    , m_updaterButton(addButton(tr("&Firmware Updater..."), "updaterButton"))
{
    setObjectName(QStringLiteral("updateFileDialog"));
    m_tree->setObjectName(QStringLiteral("updateFileTree"));
    m_tree->setHeaderLabels({tr("Version, cameras"), tr("Models, firmware"), tr("Effect")});
    m_tree->setRootIsDecorated(true);
    m_tree->header()->setStretchLastSection(true);
    m_entryBrowser->setObjectName(QStringLiteral("updateFileEntry"));
    m_entryBrowser->setAccessibleName(tr("What is known of this version"));
    // Links go through the viewer, which opens web pages and nothing else.
    m_entryBrowser->setOpenLinks(false);
    m_entryBrowser->setMinimumHeight(5 * fontMetrics().lineSpacing());
    m_entryBrowser->setMaximumHeight(12 * fontMetrics().lineSpacing());
    replaceDetails(m_entryBrowser);
    m_readingBar->setObjectName(QStringLiteral("readingBar"));
    m_readingBar->setRange(0, 0);
    m_readingBar->setTextVisible(false);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_readingBar);
    addAboveList(row);
    m_camerasTimer.setSingleShot(true);
    m_camerasTimer.setInterval(0);

    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CUpdateFileDialog::showEntry);
    connect(m_entryBrowser, &QTextBrowser::anchorClicked, this, &CUpdateFileDialog::openLink);
    connect(m_updaterButton, &QPushButton::clicked, this, [this] {
        accept();
        emit updaterWanted();
    });
    if (m_updateAction)
        connect(m_updateAction, &QAction::changed, this, &CUpdateFileDialog::updateButtons);
    connect(&m_pool, &CameraPool::CCameraPool::updateRunningChanged, this,
            &CUpdateFileDialog::updateButtons);
    connect(&m_camerasTimer, &QTimer::timeout, this, &CUpdateFileDialog::showCameras);
    const auto showLater = [this] { m_camerasTimer.start(); };
    connect(&m_pool, &CameraPool::CCameraPool::activityChanged, this, showLater);
    const auto enumeration = m_pool.getService<Plugin::CameraPool::ICameraEnumerationService>();
    connect(enumeration.data(), &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged,
            this, showLater);
}

CUpdateFileDialog::~CUpdateFileDialog() = default;

void CUpdateFileDialog::showFile(const QString &path, const Signature::CSignaturePolicy &policy)
{
    m_content = {};
    m_tree->clear();
    setToolTip(QString());
    setHint(tr("The file %1 is being read...").arg(shorten(QFileInfo(path).fileName())));
    getCloseButton()->setText(tr("Cancel"));
    m_readingBar->show();
    fit(true);
    updateButtons();
    m_reading.start([this, path, policy](const Files::CBackgroundWork::Checkpoint &checkpoint) {
        const CContent content = read(path, policy, checkpoint);
        return [this, path, content] { showContent(path, content); };
    });
}

CUpdateFileDialog::CContent
CUpdateFileDialog::read(const QString &path, const Signature::CSignaturePolicy &policy,
                        const Files::CBackgroundWork::Checkpoint &checkpoint)
{
    using UpdateFile::CUpdateFileError;
    const QString name = QFileInfo(path).fileName();
    CContent content;
    try {
        const auto manifest = QSharedPointer<const UpdateFile::CUpdateManifest>::create(
            UpdateFile::CUpdateFileReader::read(path, checkpoint));
        const Signature::CSignatureVerdict verdict
            = policy.judge(manifest->json, manifest->signature);
        const Text::CErrorText refusal = policy.findRefusal(verdict);
        content.isUsable = refusal.isEmpty();
        content.sentence = CUpdateFileError(name, content.isUsable ? verdict.describe() : refusal)
                               .getText()
                               .getLocalized();
        for (int i = 0; i < manifest->updates.size(); ++i)
            content.entries.append(
                CCameraVerdict::InfoPtr(new Update::CFirmwareUpdateInfo(manifest, i, path)));
    } catch (const CUpdateFileError &error) {
        // The folder, which may be long, is in the tool tip.
        content.sentence = CUpdateFileError(name, error.getCause()).getText().getLocalized();
    } catch (const std::bad_alloc &) {
        content.sentence = CUpdateFileError(name, Text::CErrorText::tr("out of memory"))
                               .getText()
                               .getLocalized();
    }
    return content;
}

void CUpdateFileDialog::showContent(const QString &path, const CContent &content)
{
    m_content = content;
    m_readingBar->hide();
    getCloseButton()->setText(tr("Close"));
    setToolTip(Core::Text::toToolTip(QDir::toNativeSeparators(path)));
    fit(!m_content.entries.isEmpty());
    showCameras();
    updateButtons();
    if (!m_content.entries.isEmpty())
        emit fileRead(path);
}

void CUpdateFileDialog::fit(bool isWhole)
{
    m_tree->setVisible(isWhole);
    m_entryBrowser->setVisible(isWhole);
    // A fault is one sentence, around which nothing is to be empty.
    layout()->activate();
    if (!isWhole)
        resize(WHOLE_SIZE.width(), minimumSizeHint().height());
    else if (height() < WHOLE_SIZE.height())
        resize(WHOLE_SIZE);
}

const CUpdateEntry &CUpdateFileDialog::getEntry(int place) const
{
    return static_cast<const Update::CFirmwareUpdateInfo &>(*m_content.entries.at(place))
        .getEntry();
}

void CUpdateFileDialog::showCameras()
{
    m_camerasTimer.stop();
    if (m_readingBar->isVisibleTo(this))
        return;
    QStringList sentences{tr("%1.").arg(m_content.sentence)};
    const int currentPlace = m_tree->currentItem()
        ? m_tree->indexOfTopLevelItem(m_tree->currentItem()->parent()
                                          ? m_tree->currentItem()->parent()
                                          : m_tree->currentItem())
        : 0;
    m_tree->clear();
    QVector<Counts> counts(m_content.entries.size(), Counts{});
    QVector<QList<QTreeWidgetItem *>> rows(m_content.entries.size());
    Counts all{};
    int cameraCount = 0;
    int fittingCount = 0;
    const auto layers = m_pool.getService<Plugin::CameraPool::ICameraEnumerationService>()
                            ->getTransportLayerInfoVector();
    for (const auto &layer : layers) {
        for (const auto &camera : layer->getCameraInfoList()) {
            ++cameraCount;
            const CCameraVerdict verdict
                = CameraPool::judgeCamera(m_pool, camera, m_content.entries);
            if (m_content.entries.isEmpty() || verdict.verdict == EVerdict::DoesNotFit)
                continue;
            ++fittingCount;
            const int place = static_cast<int>(m_content.entries.indexOf(
                CameraPool::findFitting(*camera, m_content.entries).constFirst()));
            ++getCount(counts[place], verdict.verdict);
            ++getCount(all, verdict.verdict);
            rows[place].append(new QTreeWidgetItem(
                QStringList{shorten(camera->getDisplayName()),
                            shorten(camera->getFirmwareVersion()), describe(verdict)}));
        }
    }
    for (int place = 0; place < m_content.entries.size(); ++place) {
        const CUpdateEntry &entry = getEntry(place);
        const QString models = shorten(entry.models.join(QStringLiteral(", ")));
        auto *const item = new QTreeWidgetItem(
            m_tree, {shorten(entry.version), models, describe(counts.at(place))});
        item->addChildren(rows.at(place));
        item->setExpanded(true);
    }
    m_tree->setCurrentItem(m_tree->topLevelItem(qMax(currentPlace, 0)));
    if (!m_content.entries.isEmpty()) {
        const QString effects = describe(all);
        const QString count = QString::number(fittingCount);
        const QString total = QString::number(cameraCount);
        sentences.append(
            effects.isEmpty()
                ? tr("Cameras that it fits: %1 of %2").arg(count, total)
                : tr("Cameras that it fits: %1 of %2 (%3)").arg(count, total, effects));
    }
    setHint(sentences.join(QLatin1Char('\n')));
}

void CUpdateFileDialog::showEntry()
{
    const QTreeWidgetItem *const item = m_tree->currentItem();
    if (!item) {
        m_entryBrowser->clear();
        return;
    }
    QTreeWidgetItem *const parent = item->parent();
    const CUpdateEntry &entry = getEntry(
        m_tree->indexOfTopLevelItem(parent ? parent : const_cast<QTreeWidgetItem *>(item)));
    const auto join = [](const QStringList &texts) {
        return shorten(texts.join(QStringLiteral(", ")), MAXIMUM_LENGTH);
    };
    QStringList lines;
    const auto add = [&lines](const QString &text) { lines.append(text.toHtmlEscaped()); };
    if (!entry.description.isEmpty())
        add(Text::toSingleLine(entry.description));
    add(tr("Version: %1").arg(shorten(entry.version)));
    add(tr("Models: %1").arg(join(entry.models)));
    if (!entry.deviceVersions.isEmpty())
        add(tr("Device versions: %1").arg(join(entry.deviceVersions)));
    if (!entry.minimumVersion.isEmpty())
        add(tr("Needs firmware: %1 or newer").arg(shorten(entry.minimumVersion)));
    QString text = lines.join(QStringLiteral("<br>"));
    if (!entry.releaseNotes.isEmpty())
        text += QStringLiteral("<p>%1<br>%2</p>")
                    .arg(tr("Release notes:").toHtmlEscaped(), toRichText(entry.releaseNotes));
    m_entryBrowser->setHtml(text);
}

void CUpdateFileDialog::updateButtons()
{
    m_updaterButton->setVisible(m_updateAction && m_updateAction->isVisible());
    m_updaterButton->setEnabled(m_content.isUsable && m_updateAction && m_updateAction->isEnabled()
                                && !m_pool.isUpdateRunning());
    (m_updaterButton->isEnabled() ? m_updaterButton : getCloseButton())->setDefault(true);
}

void CUpdateFileDialog::openLink(const QUrl &link)
{
    if (Core::Text::isWebLink(link.toString()))
        QDesktopServices::openUrl(link);
}

} // namespace Viewer::AppCore
