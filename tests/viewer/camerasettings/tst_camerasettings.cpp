#include "support/streamtask.h"
#include "support/virtualcameraprocess.h"
#include "support/widgets.h"
#include "viewer/camerasettings/camerasettingsview.h"
#include "viewer/camerasettings/featuretree.h"
#include "viewer/camerasettings/numberbox.h"
#include "viewer/camerasettings/settingeditor.h"
#include "viewer/stream/camerastream.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeView>

#include <limits>

using namespace Viewer::CameraSettings;
using TestSupport::CVirtualCameraProcess;
using TestSupport::find;
using TestSupport::getText;
using Viewer::Camera::CFeatureInfo;
using Viewer::Image::CFrame;
using Viewer::Stream::CCameraStream;

Q_DECLARE_METATYPE(Viewer::Camera::CFeatureInfo)

/// Settings of simulated and virtual cameras, through the worker that the viewer uses.
class CCameraSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void showsASimulatedCamera();
    void writesNothingByShowing();
    void writesWhatIsTyped();
    void undoesWhatIsRefused();
    void changesTheFormatOfImages();
    void filtersFeatures();
    void keepsNumbersWhole_data();
    void keepsNumbersWhole();
    void showsHostileFeaturesOnOneLine();

private:
    void open(bool isReal, bool isShown = true);
    QString read(const QString &name);

    std::unique_ptr<CVirtualCameraProcess> m_camera;
    std::unique_ptr<CCameraStream> m_stream;
    std::unique_ptr<CCameraSettingsView> m_view;
    quint32 m_format = 0;
    int m_frameCount = 0;
};

void CCameraSettingsTest::cleanup()
{
    m_view.reset();
    m_stream.reset();
    m_camera.reset();
    m_frameCount = 0;
}

void CCameraSettingsTest::open(bool isReal, bool isShown)
{
    QStringList arguments;
    if (isReal) {
        const QHostAddress address = CVirtualCameraProcess::getOwnAddress(1);
        m_camera
            = std::make_unique<CVirtualCameraProcess>(address, QStringList{"--size", "320x240"});
        arguments = QStringList{"--no-simulation", "--camera-address", address.toString()};
    }
    m_stream
        = std::make_unique<CCameraStream>(WORKER, TestSupport::makeStreamTask(arguments), "It");
    connect(m_stream.get(), &CCameraStream::opened, m_stream.get(), &CCameraStream::start);
    connect(m_stream.get(), &CCameraStream::frameReady, this, [this](const CFrame &frame) {
        m_format = frame.pixelFormat;
        ++m_frameCount;
    });
    m_view = std::make_unique<CCameraSettingsView>();
    m_view->setStream(m_stream.get());
    if (isShown) {
        m_view->show();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        QTRY_VERIFY(find(*m_view, "Width"));
    }
    QTRY_VERIFY(m_frameCount > 0);
}

QString CCameraSettingsTest::read(const QString &name)
{
    std::optional<QString> value;
    const auto connection = connect(m_stream.get(), &CCameraStream::featuresRead, this,
                                    [&](const QVector<CFeatureInfo> &features) {
                                        if (features.size() == 1)
                                            value = features.first().value;
                                    });
    m_stream->readFeatures({name});
    const bool isAnswered = QTest::qWaitFor([&] { return value.has_value(); });
    disconnect(connection);
    return isAnswered ? *value : "no answer";
}

void CCameraSettingsTest::showsASimulatedCamera()
{
    open(false);
    const auto *const rate = find<CNumberBox>(*m_view, "AcquisitionFrameRate");
    QCOMPARE(rate->text(), QString("25"));
    QVERIFY(rate->isEnabled());
    QCOMPARE(getText(*m_view, "AcquisitionFrameRateLimits"), QString("1 to 100 Hz"));
    QVERIFY(!find(*m_view, "Width")->isEnabled());
    QVERIFY(!find(*m_view, "ExposureTime"));
    m_stream->end();
    QTRY_VERIFY(find(*m_view, "settingsHint")->isVisible());
}

void CCameraSettingsTest::writesNothingByShowing()
{
    QVector<qint64> writes;
    for (const bool isShown : {false, true}) {
        open(true, isShown);
        if (isShown) {
            QCOMPARE(getText(*m_view, "ExposureTimeLimits"), QString("10 to 1000000 us"));
            QCOMPARE(getText(*m_view, "WidthLimits"), QString("16 to 4096"));
            QCOMPARE(find<QComboBox>(*m_view, "PixelFormat")->currentText(), QString("Mono8"));
            QVERIFY(find(*m_view, "TriggerMode") && find(*m_view, "TestPattern"));
            // Both questions come again by themselves.
            QSignalSpy answers(m_stream.get(), &CCameraStream::featuresRead);
            QTRY_VERIFY(answers.size() >= 2);
        }
        m_stream->end();
        m_stream->waitForEnd(QDeadlineTimer(5000));
        const auto numbers = m_camera->end();
        writes.append(numbers["writereg"] + numbers["writemem"]);
        cleanup();
    }
    QCOMPARE(writes.at(1), writes.at(0));
}

void CCameraSettingsTest::writesWhatIsTyped()
{
    open(true);
    auto *const exposure = find<CNumberBox>(*m_view, "ExposureTime");
    exposure->setFocus();
    exposure->selectAll();
    const QString before = exposure->text();
    QTest::keyClicks(exposure, "512.25");
    QCOMPARE(read("ExposureTime"), before);
    QTest::keyClick(exposure, Qt::Key_Return);
    QCOMPARE(read("ExposureTime"), QString("512.25"));
    QTest::keyClick(exposure, Qt::Key_Up);
    QCOMPARE(read("ExposureTime"), QString("520"));
    QTRY_COMPARE(exposure->text(), QString("520"));
    // A multiple of 4, by leaving the field.
    auto *const width = find<CNumberBox>(*m_view, "Width");
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, "403");
    QTest::keyClick(width, Qt::Key_Tab);
    QCOMPARE(read("Width"), QString("404"));
    QTRY_COMPARE(getText(*m_view, "OffsetXLimits"), QString("0 to 3692"));
}

void CCameraSettingsTest::undoesWhatIsRefused()
{
    open(true);
    auto *const offset = find<CNumberBox>(*m_view, "OffsetX");
    const auto *const message = find<QLabel>(*m_view, "settingsMessage");
    const auto type = [offset](const char *text) {
        offset->setFocus();
        offset->selectAll();
        QTest::keyClicks(offset, text);
        QTest::keyClick(offset, Qt::Key_Return);
    };
    type("5000");
    QCOMPARE(message->text(), QString("\"5000\" is not possible: OffsetX goes from 0 to 3776."));
    QCOMPARE(offset->text(), QString("0"));
    // Somebody else has left no room, which is not known here yet.
    m_stream->writeFeature("Width", "4096");
    type("400");
    QTRY_VERIFY(message->text().contains("its feature \"OffsetX\" could not be set to \"400\""));
    QTRY_COMPARE(offset->text(), QString("0"));
    QTRY_COMPARE(getText(*m_view, "OffsetXLimits"), QString("0 to 0"));
}

void CCameraSettingsTest::changesTheFormatOfImages()
{
    open(true);
    QCOMPARE(m_format, 0x01080001U);
    QTest::keyClick(find<QComboBox>(*m_view, "PixelFormat"), Qt::Key_R);
    QTRY_COMPARE(m_format, 0x02180014U);
    QCOMPARE(read("PixelFormat"), QString("RGB8"));
    QTRY_COMPARE(find<QComboBox>(*m_view, "PixelFormat")->currentText(), QString("RGB8"));
    QVERIFY(find(*m_view, "PixelFormat")->isEnabled());
}

void CCameraSettingsTest::filtersFeatures()
{
    open(true);
    const auto *const tree = find<QTreeView>(*m_view, "featureTree");
    const QAbstractItemModelTester tester(tree->model());
    QVERIFY(tree->model()->rowCount() > 3);
    QTest::keyClicks(find(*m_view, "featureFilter"), "SENSORw");
    QCOMPARE(tree->model()->rowCount(), 1);
    const QModelIndex category = tree->model()->index(0, 0);
    QCOMPARE(category.data().toString(), QString("ImageFormatControl"));
    QCOMPARE(tree->model()->rowCount(category), 1);
    QCOMPARE(tree->model()->index(0, 1, category).data().toString(), QString("4096"));
    QVERIFY(tree->isExpanded(category));
}

void CCameraSettingsTest::keepsNumbersWhole_data()
{
    constexpr qint64 LEAST = std::numeric_limits<qint64>::min();
    constexpr qint64 MOST = std::numeric_limits<qint64>::max();
    constexpr double HUGE_NUMBER = std::numeric_limits<double>::max();
    QTest::addColumn<CFeatureInfo>("feature");
    QTest::addColumn<QString>("typed"); // nothing: the arrow upwards
    QTest::addColumn<QString>("edited"); // nothing: rejected
    const auto integer = [](qint64 value, qint64 minimum, qint64 maximum, qint64 increment) {
        CFeatureInfo info;
        info.kind = CFeatureInfo::EKind::Integer;
        info.value = QString::number(value);
        info.integerMinimum = minimum;
        info.integerMaximum = maximum;
        info.integerIncrement = increment;
        return info;
    };
    const auto number = [](double value, double minimum, double maximum, double increment) {
        CFeatureInfo info;
        info.kind = CFeatureInfo::EKind::Float;
        info.value = CFeatureInfo::toText(value);
        info.minimum = minimum;
        info.maximum = maximum;
        info.increment = increment;
        return info;
    };
    QTest::newRow("64 bits") << integer(0, LEAST, MOST, 1) << "9223372036854775807"
                             << "9223372036854775807";
    QTest::newRow("65 bits") << integer(0, LEAST, MOST, 1) << "9223372036854775808" << QString();
    QTest::newRow("large increment") << integer(0, LEAST, MOST, MOST) << "9223372036854775806"
                                     << "9223372036854775806";
    QTest::newRow("nearest multiple") << integer(0, 2, 100, 5) << "10"
                                      << "12";
    QTest::newRow("last multiple") << integer(7, 2, 10, 5) << "10" << QString("7=");
    QTest::newRow("up") << integer(7, 2, 100, 5) << QString() << "12";
    QTest::newRow("up to the end")
        << integer(MOST - 1, LEAST, MOST, 1) << QString() << "9223372036854775807";
    QTest::newRow("up from the end") << integer(MOST, LEAST, MOST, 1) << QString() << "=";
    QTest::newRow("minimum > maximum") << integer(5, 10, -10, 3) << "70"
                                       << "70";
    QTest::newRow("a word") << integer(5, 0, 10, 1) << "five" << QString();
    QTest::newRow("too little") << integer(5, 0, 10, 1) << "-1" << QString();
    QTest::newRow("many digits") << number(1, 0, 10, 0) << "3.1415926535897931"
                                 << "3.141592653589793";
    QTest::newRow("shown limit") << number(1, 0.1F, 10, 0) << "0.1"
                                 << "0.1";
    QTest::newRow("float increment") << number(1, 0.5, 10, 0.25) << "3.3"
                                     << "3.25";
    QTest::newRow("float up") << number(0.1, 0, 10, 0) << QString() << "0.11";
    QTest::newRow("float of any size")
        << number(HUGE_NUMBER, -HUGE_NUMBER, HUGE_NUMBER, 0) << QString() << "=";
    QTest::newRow("infinite") << number(1, 0, HUGE_NUMBER, 0) << "inf" << QString();
}

void CCameraSettingsTest::keepsNumbersWhole()
{
    QFETCH(CFeatureInfo, feature);
    QFETCH(QString, typed);
    QFETCH(QString, edited);
    CNumberBox box;
    box.setFeature(feature);
    QSignalSpy edits(&box, &CNumberBox::edited);
    QSignalSpy rejections(&box, &CNumberBox::rejected);
    if (typed.isNull()) {
        QTest::keyClick(&box, Qt::Key_Up);
    } else {
        box.selectAll();
        QTest::keyClicks(&box, typed);
        QCOMPARE(edits.size(), 0);
        QTest::keyClick(&box, Qt::Key_Return);
    }
    const bool isNone = edited.isEmpty() || edited.endsWith('=');
    QCOMPARE(rejections.size(), int(edited.isEmpty()));
    QCOMPARE(edits.size(), int(!isNone));
    QCOMPARE(box.text(), isNone ? feature.value : edited);
    if (!isNone)
        QCOMPARE(edits.first().first().toString(), edited);
}

void CCameraSettingsTest::showsHostileFeaturesOnOneLine()
{
    QVector<CFeatureInfo> features;
    for (int i = 0; i < 5000; ++i) {
        CFeatureInfo info;
        info.name = QString("<b>%1\n").arg(i) + QString(1000, 'x');
        info.category = "<img src=x>\n / " + QString::number(i % 2);
        info.unit = "<u>\n";
        info.value = QString(100000, 'v');
        info.isReadable = true;
        info.kind = i == 0 ? CFeatureInfo::EKind::Enumeration : CFeatureInfo::EKind::Float;
        info.minimum = 1;
        features.append(info);
    }
    CFeatureTree tree;
    tree.setFeatures(features);
    tree.update(features);
    const auto *const model = find<QTreeView>(tree, "featureTree")->model();
    QCOMPARE(model->rowCount(), 2);
    const QModelIndex category = model->index(0, 0);
    QCOMPARE(model->rowCount(category), 2500);
    for (const QModelIndex &index :
         {category, model->index(0, 0, category), model->index(0, 1, category)}) {
        QVERIFY(!index.data().toString().contains('\n'));
        QVERIFY(index.data().toString().size() <= 210);
    }
    QStringList names;
    while (names.size() < 5000)
        names += tree.takeNextNames(20);
    QCOMPARE(names.removeDuplicates(), 0);

    CSettingEditor choice(features.at(0));
    choice.findChild<QComboBox *>()->showPopup();
    CSettingEditor number(features.at(1));
    const auto *const limits = number.findChild<QLabel *>();
    QCOMPARE(limits->text(), QString("<u>?"));
    QCOMPARE(limits->textFormat(), Qt::PlainText);
    QVERIFY(!number.isEnabled());
}

QTEST_MAIN(CCameraSettingsTest)
#include "tst_camerasettings.moc"
