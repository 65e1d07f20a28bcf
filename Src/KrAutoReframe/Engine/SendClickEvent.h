#pragma once

class QString;

/// Reports the person's action `name` to the host's usage tracker, once.
void SendClickEvent(const QString& name);
