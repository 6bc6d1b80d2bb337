// Stands in for genicam.cpp where the library for real cameras is missing.

#include "genicamkind.h"
#include "searchoptions.h"

#include <QCoreApplication>

namespace Viewer::Camera::GenICam {

namespace {

class CNoGenICam : public ICameraKind
{
public:
    [[nodiscard]] QVector<CommandLine::COption> getOptions() override
    {
        QVector<CommandLine::COption> options = getSearchOptions(m_options);
        for (CommandLine::COption &option : options) {
            option.take = [](const QString &) { return false; };
            option.fault = QCoreApplication::translate(
                "Viewer::Camera::GenICam",
                "This viewer was built without the library for real cameras.");
        }
        return options;
    }

    [[nodiscard]] QString getName() const override { return QStringLiteral("genicam"); }
    [[nodiscard]] std::unique_ptr<ICameraHandle> createHandle(const QString &) const override
    {
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<ICameraDevice> makeDevice(const QCborMap &) override
    {
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<ICameraStream> makeStream(const QCborMap &) override
    {
        return nullptr;
    }
    [[nodiscard]] ECameraPresence getPresence(const QString &) const override
    {
        return ECameraPresence::Unknown;
    }
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &) override
    {
        return nullptr;
    }
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override { return {}; }
    void cancel() override { }

private:
    CSearchOptions m_options;
};

} // namespace

std::unique_ptr<ICameraKind> makeKind()
{
    return std::make_unique<CNoGenICam>();
}

} // namespace Viewer::Camera::GenICam
