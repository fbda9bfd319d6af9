// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGigEClient.h"

namespace {

GInetAddress *parsed(const QString &address)
{
    return g_inet_address_new_from_string(address.toUtf8().constData());
}

QString taken(GError *error)
{
    const QString text = error ? QString::fromUtf8(error->message) : QString();
    g_clear_error(&error);
    return text;
}

} // namespace

CGigEClient::CGigEClient(const QString &address)
{
    GInetAddress *own = parsed(QStringLiteral("127.0.0.1"));
    GInetAddress *camera = parsed(address);
    perform([&](GError **error) { m_device = arv_gv_device_new(own, camera, error); });
    g_object_unref(own);
    g_object_unref(camera);
    if (m_device) {
        arv_device_set_range_check_policy(m_device, ARV_RANGE_CHECK_POLICY_ENABLE);
        arv_device_set_access_check_policy(m_device, ARV_ACCESS_CHECK_POLICY_ENABLE);
        g_signal_connect_swapped(m_device, "control-lost",
                                 G_CALLBACK(+[](CGigEClient *self) { Q_EMIT self->controlLost(); }),
                                 this);
        collect(arv_device_get_feature(m_device, "Root"), QString());
    }
}

CGigEClient::~CGigEClient()
{
    g_clear_object(&m_device);
}

bool CGigEClient::isOpen() const
{
    return m_device != nullptr;
}

QString CGigEClient::error() const
{
    return m_error;
}

ArvDevice *CGigEClient::device() const
{
    return m_device;
}

QStringList CGigEClient::features() const
{
    return m_features;
}

QString CGigEClient::path(const QString &feature) const
{
    return m_paths.value(feature);
}

ArvGcFeatureNode *CGigEClient::node(const QString &feature) const
{
    ArvGcNode *found = arv_device_get_feature(m_device, feature.toUtf8().constData());
    return found ? ARV_GC_FEATURE_NODE(found) : nullptr;
}

QString CGigEClient::value(const QString &feature)
{
    QString result;
    perform([&](GError **error) {
        const char *text = arv_gc_feature_node_get_value_as_string(node(feature), error);
        result = *error ? QString() : QString::fromUtf8(text);
    });
    return result;
}

bool CGigEClient::setValue(const QString &feature, const QString &value)
{
    return perform([&](GError **error) {
        arv_gc_feature_node_set_value_from_string(node(feature), value.toUtf8().constData(), error);
    });
}

bool CGigEClient::execute(const QString &command)
{
    return perform([&](GError **error) {
        arv_device_execute_command(m_device, command.toUtf8().constData(), error);
    });
}

QByteArray CGigEClient::bytes(const QString &registerFeature)
{
    QByteArray result;
    perform([&](GError **error) {
        ArvGcRegister *target = ARV_GC_REGISTER(node(registerFeature));
        result.resize(static_cast<int>(arv_gc_register_get_length(target, nullptr)));
        arv_gc_register_get(target, result.data(), static_cast<guint64>(result.size()), error);
    });
    return result;
}

bool CGigEClient::setBytes(const QString &registerFeature, const QByteArray &bytes)
{
    return perform([&](GError **error) {
        arv_gc_register_set(ARV_GC_REGISTER(node(registerFeature)), bytes.constData(),
                            static_cast<guint64>(bytes.size()), error);
    });
}

bool CGigEClient::isAvailable(const QString &feature)
{
    return arv_gc_feature_node_is_available(node(feature), nullptr);
}

bool CGigEClient::isImplemented(const QString &feature)
{
    return arv_gc_feature_node_is_implemented(node(feature), nullptr);
}

bool CGigEClient::isLocked(const QString &feature)
{
    return arv_gc_feature_node_is_locked(node(feature), nullptr);
}

bool CGigEClient::perform(const std::function<void(GError **)> &action)
{
    GError *error = nullptr;
    action(&error);
    const bool isDone = !error;
    m_error = taken(error);
    return isDone;
}

void CGigEClient::collect(ArvGcNode *category, const QString &path)
{
    const GSList *entry = arv_gc_category_get_features(ARV_GC_CATEGORY(category));
    for (; entry; entry = entry->next) {
        const auto *name = static_cast<const char *>(entry->data);
        ArvGcNode *child = arv_device_get_feature(m_device, name);
        const QString text = QString::fromUtf8(name);
        if (ARV_IS_GC_CATEGORY(child)) {
            collect(child, path.isEmpty() ? text : path + QLatin1Char('/') + text);
        } else {
            m_features.append(text);
            m_paths.insert(text, path);
        }
    }
}
