#include "ui/machine/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace velmora {

namespace {

// A text under a type of ours must come back as text, not as bytes.
constexpr const char* kTextSuffix = ";charset=utf-8";

// A picture is exchanged with other programs.
constexpr const char* kPngMimeName = "image/png";

QString mimeName(std::string_view type, bool isText) {
    if (type == kPngType) {
        return QLatin1String(kPngMimeName);
    }
    QString name = QStringLiteral("application/x-") + QString::fromUtf8(type.data(), qsizetype(type.size()));
    return isText ? name + QLatin1String(kTextSuffix) : name;
}

PropertyData toPropertyData(const QByteArray& bytes) { return {bytes.begin(), bytes.end()}; }

} // namespace

void QtPasteboard::setItems(std::vector<PasteboardItem> items) {
    auto data = std::make_unique<QMimeData>();
    if (!items.empty()) {
        for (const auto& [type, representation] : items.front()) {
            if (const auto* text = std::get_if<std::string>(&representation)) {
                if (type == kPlainTextType) {
                    data->setText(QString::fromStdString(*text));
                } else {
                    data->setData(mimeName(type, true), QByteArray::fromStdString(*text));
                }
            } else {
                const auto& bytes = std::get<PropertyData>(representation);
                data->setData(mimeName(type, false), QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                                                qsizetype(bytes.size())));
            }
        }
    }
    QGuiApplication::clipboard()->setMimeData(data.release());
}

std::vector<PasteboardItem> QtPasteboard::items() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    PasteboardItem item;
    if (data == nullptr) {
        return {};
    }
    if (data->hasText()) {
        item.emplace(kPlainTextType, data->text().toStdString());
    }
    if (data->hasFormat(QLatin1String(kPngMimeName))) {
        item.emplace(kPngType, toPropertyData(data->data(QLatin1String(kPngMimeName))));
    }
    const QString prefix = mimeName({}, false);
    const QLatin1String textSuffix(kTextSuffix);
    for (const QString& format : data->formats()) {
        if (!format.startsWith(prefix)) {
            continue;
        }
        const QByteArray bytes = data->data(format);
        QString type = format.mid(prefix.size());
        if (type.endsWith(textSuffix)) {
            type.chop(textSuffix.size());
            item.emplace(type.toStdString(), bytes.toStdString());
        } else {
            item.emplace(type.toStdString(), toPropertyData(bytes));
        }
    }
    return item.empty() ? std::vector<PasteboardItem>{} : std::vector{item};
}

} // namespace velmora
