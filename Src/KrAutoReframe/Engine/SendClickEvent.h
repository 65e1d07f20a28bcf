#pragma once

class QString;

/// Tells the host's usage tracker, once, that the person did what `name` stands for.
void SendClickEvent(const QString& name);
