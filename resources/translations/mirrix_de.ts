<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Dateien auflisten</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Metadaten lesen</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Schnelle Prüfsumme</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Volle Prüfsumme</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Ähnliche Inhalte vergleichen</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Prüfsumme des Anfangs</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Fingerabdruck aus Stichproben</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Perzeptueller Bild-Hash</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Gefunden: %3  Verarbeitet: %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>Dateien: %1 · Duplikatgruppen: %2 · Ordnergruppen: %3 · Übrige: %4 · Platzgewinn: ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>Protokoll anzeigen</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Datenordner öffnen</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Ganz beenden</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Prüfsummen</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Optionen…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Über Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Lokal · Ohne Werbung · Bild-Hash: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Ort → ② Regeln → ③ Vorschau und Aufräumen</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Ordner wählen, um zu beginnen</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Danach links auf „Suche starten“ klicken</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Vergleichsregeln festlegen</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Duplikate ansehen und aufräumen</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Überzählige Kopien ankreuzen; im Zweifel vorher sichern</translation>
    </message>
    <message>
        <source>请选择要扫描的位置</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>配置规则后点击「开始扫描」</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>勾选重复项并进行清理</source>
        <translation>Duplikate ankreuzen und aufräumen</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Mindestens einen Suchort einschalten.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Suche läuft: Regeln und Orte sind gesperrt.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Suche bestätigen</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Suche starten</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Lokal · Bild-Hash: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Suche abgeschlossen · Bild-Hash: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>Im Papierkorb</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>In einem Sicherungsordner</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>In einem Schnappschuss</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>Nicht lesbar (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Suche fehlgeschlagen</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Portabler Modus</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Standardmodus</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>Mirrix läuft im Infobereich weiter. Über das Menü des Symbols lässt es sich ganz beenden.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Ganz beenden</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Doppelte Dateien finden und aufräumen</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Duplikate aufräumen</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Ort wählen</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Vergleichsregeln</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Vorschau und Aufräumen</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>Bei der Suche ist ein unbekannter Fehler aufgetreten</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Suche abgebrochen</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Wechseldatenträger</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Lokaler Datenträger</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Netzlaufwerk</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Optisches Laufwerk</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>RAM-Laufwerk</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>Wiederherstellen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>Die Sicherung ist beschädigt; nicht wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Wiederhergestellt, aber die Sicherung konnte nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>Der Sicherungsindex konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>Am ursprünglichen Ort liegt schon eine Datei; nicht wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>Verschieben in den Sicherungsordner fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Seit der Suche geändert, behalten: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>Die zu behaltende Datei hat sich geändert; diese Kopie blieb unberührt: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>Möglicherweise dieselbe Datei wie die zu behaltende; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>Zielordner ließ sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>Ziel ist schon vorhanden: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>Pfad der Verknüpfung ist schon vorhanden: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>Keine Berechtigung für symbolische Verknüpfungen (Entwicklermodus einschalten oder als Administrator ausführen): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>Löschen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>Ordner ist nicht mehr leer oder darf nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>Verschieben fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>Kopieren fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>Feste Verknüpfung ließ sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>Symbolische Verknüpfung ließ sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>Das Ziel der Verknüpfung ist keine brauchbare Datei: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>Die Datei ließ sich nicht zurücklegen; sie kann aus der Sicherung wiederhergestellt werden: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>Verschieben in den Papierkorb nicht möglich; Datei behalten: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>Das Protokoll der Bereinigung konnte nicht geschrieben werden: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Ein anderes Programm benutzt das Protokoll der Bereinigung: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>Das Protokoll der Bereinigung ist beschädigt; nur sein heiler Teil wurde gelesen: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>Das Protokoll der Bereinigung konnte nicht gelesen werden (beschädigt oder von einem anderen Computer): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>Lässt sich nicht neu erstellen; der Inhalt wurde nicht mit der zu behaltenden Datei verglichen: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>Lässt sich nicht neu erstellen; die zu behaltende Datei fehlt oder hat sich geändert: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>Nicht mehr im Papierkorb; nicht wiederherstellbar: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>Nicht mehr dort oder geändert; nicht wiederhergestellt: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>Der Ordner oder das Laufwerk fehlt; nicht wiederhergestellt: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Wiederhergestellt, aber die Verknüpfung konnte nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Wiederhergestellt, aber Zeit oder Rechte konnten nicht gesetzt werden: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Verschieben in den Papierkorb fehlgeschlagen (Code %1, Dateien: %2)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>Nicht in den Papierkorb verschoben, noch am alten Ort: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Neueste Datei behalten</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Älteste Datei behalten</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Datei im obersten Ordner behalten</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Datei im tiefsten Ordner behalten</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Sicherungsordner wählen</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Erweitert (Behalten, Sicherung, …)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Zu behalten</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Versteckte Dateien auslassen</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Systemordner ausschließen</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Vor dem Löschen sichern</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Sicherungsordner</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Zu durchsuchende Laufwerke</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Laufwerke ankreuzen, um sie zu den Suchorten hinzuzufügen (die Suche beginnt noch nicht).
Systemordner bleiben ausgeschlossen. Das ganze Systemlaufwerk nur mit Bedacht durchsuchen.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Zu Suchorten hinzufügen</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>Keine Laufwerke angekreuzt.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>Systemlaufwerk durchsuchen?</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>Es ist ein Systemlaufwerk angekreuzt. Es ganz zu durchsuchen dauert länger; Systemordner bleiben ausgeschlossen.
Zu den Suchorten hinzufügen?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Hinzufügen bestätigen</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Laufwerke zu den Suchorten hinzufügen (die Suche beginnt noch nicht): %1
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>Keine durchsuchbaren Laufwerke gefunden.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Auszuschließenden Ordner wählen</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Ausgeschlossene Ordner</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Ausschließen</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Herausnehmen</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Einen Ordner wählen, der nicht durchsucht wird</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>Die markierten Ordner nicht länger ausschließen</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Ordnerauswahl</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Ordner wählen und mit → rechts zu den Suchorten hinzufügen;
oder Ordner aus dem Explorer in die Liste ziehen.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Markierte Ordner zu den Suchorten hinzufügen</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Zu durchsuchenden Ordner wählen</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>Ein Suchort je Zeile; Status = ein/aus; Geschützt = auslassen.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Ordner</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Laufwerk</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Aus Liste nehmen</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Einen Ordner wählen, der zu den Suchorten kommt</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Einbezogen</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Geschützt</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>Ungeschützt</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Ja</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 Nein</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Unterordner durchsuchen</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Duplikate suchen</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Übrige Dateien anzeigen</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Duplikate</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Gleicher Name</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 Leere Dateien</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
Dieser Ordner ist zurzeit nicht zu finden.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Suchorte</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Schnellauswahl</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Lokaler Datenträger (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Suche läuft; Stapelaktionen sind so lange gesperrt.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>„Doppelte Ordner“ ist nur zum Ansehen; gelöscht und exportiert wird unter „Doppelte Dateien“.</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>„Übrige Dateien“ ist nur zum Ansehen; angekreuzt wird unter „Doppelte Dateien“.</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>Nach der Suche links Duplikate ankreuzen, dann Stapelaktionen ausführen.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>Angekreuzte Dateien: %1</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Ordnergruppe %1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Größe unbekannt</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 frei</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>Ohne Name</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·Systemlaufwerk</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>Die Datei ist nicht mehr vorhanden oder nicht erreichbar</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>Das Bild ist zu groß für die Vorschau</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>Dieses Bild lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Häkchen</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>Datei / Gruppe</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Gruppe %1  (Dateien: %2, Platzgewinn: %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>Alle Dateien dieser Gruppe sind angekreuzt; keine davon wird behalten.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Pfad: %1
Größe: %2
Geändert: %3
Endung: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Maße: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Kamera: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Aufgenommen: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Künstler: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Titel: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>Genau gleich</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Fast gleich</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Sehr ähnlich</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Ähnlich</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Entfernt ähnlich</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Fingerabdruck aus Stichproben (mehrere Stellen)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Ungefähr (Probe der ersten ≈2 min)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Ungefähr (Probe der ersten ≈30 s)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Genaue Prüfsumme der ganzen Datei</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Nur nach Tags vergleichen</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Prüfsumme des Anfangs</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Stichproben aus der ganzen Datei (langsamer)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Nur anzeigen</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Muss gleich sein</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Bildähnlichkeit: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Spiegelung</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Varianten: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Vergleich: gleicher Inhalt (Byte für Byte)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Vergleich: ähnlicher Inhalt (Proben stimmen zu mindestens %1 % überein)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Vergleich: Inhalt ignorieren (nach Name, Größe, Datum)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Audiovergleich: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Videovergleich: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Suchorte: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … %1 weitere</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Ausgeschlossene Ordner: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Größe: %1 – %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Nur Endungen: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Ohne Endungen: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>Versteckte Dateien</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>Systemordner</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Ausgelassen: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Bitte die Einstellungen der Suche prüfen:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Modus: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>Die Suche läuft lokal; Dateien werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Aufnahmezeit</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Kamerahersteller</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Kameramodell</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Künstler</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>Titelnummer</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Textdichter</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Regie</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Stapelaktionen</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Nach Regel ankreuzen</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Alle Duplikate ankreuzen</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Häkchen umkehren</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Ergebnisse leeren</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>In Sicherung verschieben</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Angekreuzte löschen</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>Dateivorschau</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Datei für die Vorschau markieren</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>Keine Bildvorschau
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Im Explorer öffnen</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Ordner der Datei öffnen</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Ordnerpfad kopieren</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>Noch keine Suche. Modus wählen, Ordner hinzufügen und „Suche starten“ klicken.</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>Ansicht:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Miniaturen</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>Doppelte Dateien</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Doppelte Ordner</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Übrige Dateien</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Bilder vergleichen (2 markieren)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Alle Duplikate der Gruppe ankreuzen</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Audiovergleich</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>Der Audio-Fingerabdruck beruht auf Stichproben und ist gröber als Chromaprint.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Audio-Tags</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Endungen</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Endungen des aktuellen Modus</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>Angekreuzt gelten die Endungen des aktuellen Modus, sonst nur die Liste „Einbezogen“.</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Ausgeschlossen</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>Zum Beispiel: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Getrennt durch Kommas, Semikolons oder Leerzeichen; * oder *.* steht für alle</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>Weitere RAW-Formate im Bildmodus</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>Im Bildmodus auch RAW-Dateien von Kameras wie arw, dng, rw2, orf und srw durchsuchen;
raw, cr2 und nef werden immer durchsucht. Gilt nur, solange die Liste „Einbezogen“ leer ist.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Jede Größe</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Jedes Datum</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>Ab diesem Tag</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Bis zu diesem Tag einschließlich</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>Weitere Duplikat-Kriterien</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Inhaltsvergleich</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Gleicher Inhalt</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Ähnlicher Inhalt</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Inhalt ignorieren</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Die Modi schließen einander aus:
• Gleicher Inhalt = Byte für Byte (Standard)
• Ähnlicher Inhalt = ungefähr gleiche Bytes
• Inhalt ignorieren = nur nach Metadaten</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Mindestübereinstimmung der Proben</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>Liest keine Inhalte; gruppiert nach den Kriterien darunter.</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Gleicher Dateiname</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Gleiche Endung</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Ähnliche Dateinamen</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>„Copy“, „(2)“ usw. in Dateinamen ignorieren</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>auch in anderen Sprachen</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Ignoriert auch, was Systeme und Dateimanager in anderen Sprachen an die Namen von Kopien hängen, etwa „- Kopie“ oder „(otra copia)“</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Gleiche Größe</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Einheit der Toleranz</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Gleiches Erstelldatum</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Nur Datum</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Gleiches Änderungsdatum</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Gleiches Laufwerk</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Ordner und Pfade</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Gleicher Ordnername</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Ganzen Pfad vergleichen</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Gleiche Pfadtiefe</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Pfad ab Suchort vergleichen</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Gruppen ignorieren, die ganz in einem Ordner liegen</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Textvergleich</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Toleranz bei ähnlichem Text</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>In wie vielen Zeichen ähnliche Dateinamen abweichen dürfen</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Bildvergleich</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Eingebettetes JPEG in RAW-Dateien nutzen (schneller)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Cache der Bildmerkmale nutzen</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Bild-Tags</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Genauigkeit</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Bildähnlichkeit</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Gleiche Maße</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Gleiches Seitenverhältnis</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Gedrehte und gespiegelte Bilder</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Gedrehte finden</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Gespiegelte finden</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Auch gleiche Farbverteilung verlangen</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Nach Zeit gruppieren</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Nach Aufnahmezeit gruppieren</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Größter Unterschied der Aufnahmezeiten</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Nach GPS gruppieren</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Nach GPS-Ort gruppieren</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Größter Abstand der Orte</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Vergleichsart</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>Um nur nach Tags zu vergleichen, mindestens einen auf „Muss gleich sein“ stellen</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Dauer vergleichen</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Feste Verknüpfungen auf dieselbe Datei ignorieren</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>Eine feste Verknüpfung ist ein weiterer Name derselben Daten; sie zu entfernen gibt keinen Platz frei.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Angekreuzt = Tags werden verglichen; sonst bleiben die Tags dieser Gruppe unbeachtet</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Hinzufügen</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Videovergleich</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Näherung aus Byte-Stichproben, kein Fingerabdruck Bild für Bild.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Stunden:Minuten:Sekunden.Millisekunden</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Video-Tags</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>Kopierte Dateien: %1</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>Datei lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>Skript lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Unbekanntes Exportformat.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>Ein Batch-Skript kann diese Datei nicht genau benennen; als Kommentar geschrieben: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix: Bericht über doppelte Dateien</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Erstellt: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Suchmodus: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Umfang: nur angekreuzte Dateien</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Hinweis: Pfade anonymisiert (Benutzername verborgen)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Gruppe %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Schlüssel: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (Dateien: %1)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Fehlgeschlagen:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>Dateien nach Regel angekreuzt</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Duplikate jeder Gruppe angekreuzt (die erste Datei bleibt)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Häkchen umgekehrt</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Häkchen werden geändert…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Gestoppt; die restlichen Dateien wurden nicht verarbeitet</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Bitte zuerst Dateien ankreuzen.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Dateien (%1) in den Sicherungsordner verschieben:
%2
Fortfahren?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Verschieben bestätigen</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>In Sicherung verschieben… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>In die Sicherung verschobene Dateien: %1. %2
Bitte neu suchen.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Bitte zuerst zu löschende Dateien ankreuzen.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Sichern und entfernen… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Warnung zur Sicherung</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>Einige Dateien wurden nicht gesichert:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>Gesicherte und entfernte Dateien: %1. Bitte neu suchen.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Endgültiges Löschen bestätigen</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Endgültig zu löschende Dateien: %1. Dies lässt sich nicht rückgängig machen. Fortfahren?</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Dateien entfernen… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Neu suchen, um die Ergebnisse aufzufrischen.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>Verarbeitete Dateien: %1. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Sicherungsindex wird gelesen…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>Der Sicherungsindex ist leer.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Wiederherstellen bestätigen</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>Wird wiederhergestellt:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Dateien wiederherstellen… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>Wiederhergestellte Dateien: %1.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>Erneut entfernte Dateien: %1.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>Datei wiederhergestellt.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Findet doppelte Dateien schnell und räumt sie sicher auf. Vergleicht allgemeine Inhalte, ähnliche Bilder, Audio nach Fingerabdruck und Videos nach Miniatur.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Portabler Modus (Daten in \Data neben dem Programm)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Standardmodus (Daten in AppData des Benutzers)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Version %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Datenordner: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Dank an Open-Source-Projekte</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>CSV-Liste (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Textliste (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Dateien in Ordner kopieren</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Batch-Skript erzeugen (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Batch (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Suchergebnisse exportieren</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Exportformat</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>Das Skript löscht jede aufgeführte Datei, auch die zu behaltenden; um nur die angekreuzten zu löschen, „Nur angekreuzte Dateien“ einschalten</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Ausgabepfad:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Nur angekreuzte Dateien</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Mit Gruppenschlüssel und Änderungszeit</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Pfade anonymisieren (Benutzername verbergen)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>Ein anonymisiertes Batch-Skript ist nur zum Lesen da: Dateien mit verborgenem Benutzernamen löscht es nicht</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>Stoppt nach der aktuellen Datei</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>In Ordner verschieben</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Durch symbolische Verknüpfung ersetzen</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Durch feste Verknüpfung ersetzen</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Dateien entfernen</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>Zu verarbeitende Dateien: %1. Wie sollen sie entfernt werden?</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Art des Entfernens</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Zielordner:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Ziel der Verknüpfung:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>Zu behaltende Datei (für Verknüpfungen)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>Darf leer bleiben, wenn vorher gesichert wird: jede Verknüpfung führt dann zur nicht angekreuzten Datei ihrer Gruppe</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Vor dem Entfernen sichern</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Prüfsummen - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Dateien wählen</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Ordner wählen</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Neu berechnen</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>Mit einem Ordner kommen auch die Dateien aller Unterordner hinzu</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Prüfsumme</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Dateien und Ordner können hierher gezogen werden</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Dateien wählen</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Dateien werden gesucht…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Prüfsummen werden berechnet…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Prüfsumme kopieren</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Dateinamen kopieren</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Bilder vergleichen</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>Datei A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>Datei B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>Das Protokoll ist leer.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>%1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Protokoll filtern</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Markierte kopieren</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Alle zwischengespeicherten Bild-Hashes und Histogramme löschen in:
%1

Die nächste Bildsuche dauert länger. Fortfahren?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Cache der Bildmerkmale leeren</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>Cache der Bildmerkmale geleert.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>Einige Cache-Dateien ließen sich nicht löschen.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  Allgemein</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Design</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  Info</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>Beim Schließen des Hauptfensters</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>In den Infobereich minimieren (empfohlen)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Signalton am Ende der Suche</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Vor der Suche nachfragen</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>Wenn ausgeschaltet, beginnt die Suche sofort; dasselbe bewirkt „Nicht mehr anzeigen“ in der Rückfrage.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Verfahren für Inhalts-Prüfsummen</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (Standard, behält vorhandene Prüfsummen)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (schneller, stärker; Prüfsummen werden neu berechnet)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Gilt nur für schnelle und volle Prüfsummen bei gleichem Inhalt; Stichproben ähnlicher Inhalte bleiben bei MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Cache und Daten</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>Der Cache der Bildmerkmale beschleunigt die Suche nach doppelten Bildern. Ort:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Löscht zwischengespeicherte Hashes und Histogramme; die nächste Suche berechnet sie neu</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Hell (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Dunkel (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Nutzt den Qt-Stil Fusion. Gilt sofort und wird gespeichert.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>Wiederherzustellende Dateien:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Nach Pfad filtern</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
Dateien, die nicht zurückgelegt werden können (%1):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
Dateien, die nicht erneut entfernt werden können (%1):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>Nicht entfernt werden (Dateien: %1, %2): Verknüpfungen entstehen nur an freien Pfaden. Um die Dateien durch Verknüpfungen zu ersetzen, zuerst sichern.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>Endgültig gelöscht werden (Dateien: %1, %2); sie kommen nicht in den Papierkorb und sind nicht wiederherstellbar.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>Endgültig gelöscht werden (Dateien: %1, %2); sie kommen nicht in den Papierkorb, lassen sich aber aus den behaltenen Dateien neu erzeugen.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>In den Papierkorb kommen (Dateien: %1, %2); Platz wird erst frei, wenn er geleert wird.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>In den Sicherungsordner kommen (Dateien: %1, %2); nichts wird endgültig gelöscht.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>In den Sicherungsordner kommen (Dateien: %1, %2); der Papierkorb wird nicht benutzt.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>In den Sicherungsordner kommen (Dateien: %1, %2); der Zielordner wird nicht benutzt.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>In den Sicherungsordner kommen (Dateien: %1, %2); Verknüpfungen treten an ihre Stelle.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>In den Zielordner kommen (Dateien: %1, %2).</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Nicht angekreuzt: vor dem Verschieben in Papierkorb, Ordner und Sicherung werden nur Stichproben verglichen; vor endgültigem Löschen und Verknüpfen immer der ganze Inhalt</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Einträge behalten (Tage):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Alle verarbeiten</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>Der Inhalt weicht von der zu behaltenden Datei ab; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Legt fest, ob „Vor dem Entfernen sichern“ beim Öffnen des Dialogs angekreuzt ist; gesicherte Dateien kommen in den Sicherungsordner und werden nicht gelöscht</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Ältere Einträge löschen</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Eintrag löschen</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>Im Papierkorb belegt: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>Im Verlauf zeigen</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>In der Sicherung belegt: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>Im Sicherungsordner belegt: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>Einträge des Verlaufs löschen: %1. Dateien bleiben unberührt, aber diese Bereinigungen können hier nicht mehr rückgängig gemacht werden. Fortfahren?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>Dateien an ihren Ort zurücklegen: %1. Fortfahren?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>Dateien erneut entfernen: %1 (%2). Fortfahren?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>Die Dateien dieser Bereinigung im Sicherungsordner (%1) werden endgültig gelöscht und können von dort nicht mehr wiederhergestellt werden. Fortfahren?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Angehalten; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>Gelöschte Sicherungsdateien: %1.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Zurückgelegt</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>Frei geworden: %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>Besitzer oder Rechte weichen vom Ziel der Verknüpfung ab; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Machte %1 rückgängig</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Markierte rückgängig machen</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Bereinigung rückgängig machen</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Bereinigung rückgängig machen</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Erneut bereinigen</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>Die Datei liegt noch im Papierkorb und kann von dort wiederhergestellt werden: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>Die Datei existiert bereits. Ersetzen?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>Dateien / behaltene Datei</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>Die Datei wird von einem anderen Programm benutzt; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Methode / jetziger Ort</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>Das Protokoll konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>Der Verlauf konnte nicht geschrieben werden; keine Datei wurde angerührt: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>Der Sicherungsindex konnte nicht aktualisiert werden: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>Es ließ sich nicht sicherstellen, dass die zu behaltende Datei auf dem Datenträger ist; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>Kein Ergebnis vermerkt</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Zeit / Datei</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>Einträge, die nicht gelöscht werden konnten: %1.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>Gruppen, in denen keine Datei übrig bliebe: %1.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Sicherungen werden gelöscht… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Dateien werden geprüft… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Vor jedem Entfernen den ganzen Inhalt vergleichen</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Je Gruppe ein Häkchen entfernen</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>Keine Datei bleibt übrig</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>Es gibt keine Dateien zum Zurücklegen.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>Es gibt keine Dateien, die erneut entfernt werden können.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>Es gibt keine älteren Einträge.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>Noch keine Bereinigungen.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Verlauf der Bereinigungen</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Verlauf der Bereinigungen…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>Der Zielordner enthält die Datei; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Feste Verknüpfung</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Ersetzen bestätigen</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Leere Ordner löschen</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>In Ordner verschoben</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Symbolische Verknüpfung</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>Die zu behaltende Datei ist nicht mehr da oder ist über einen anderen Pfad diese Datei selbst; blieb unberührt: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Teils rückgängig gemacht</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Einige Gruppen stimmen nicht im Inhalt überein; ihre Dateien werden vor dem Entfernen nicht verglichen.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>%1 leeren</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Sicherungen löschen</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Markierte wiederherstellen</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Dateien kopieren… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Exportieren… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>Export fehlgeschlagen.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Warnung zum Export</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Einige Dateien wurden nicht exportiert:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>Dateien kopiert nach: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Exportiert: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>Keine Ergebnisse zum Exportieren.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Bitte Ausgabepfad angeben.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… weitere Zeilen: %1, siehe Einzelheiten</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… weitere Zeilen, nicht angezeigt: %1</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>Das Ziel der Verknüpfung gehört zu einer anderen Gruppe; nicht verarbeitet: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>Keine behaltene Datei als Ziel der Verknüpfung; nicht verarbeitet: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>Dateien: %1 in %2,%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Pfad: %1
Größe: %2 Byte
Geändert: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Programm gestartet</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Suche gestartet</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Sicherung wiederhergestellt</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Zu entfernende leere Ordner</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Leere Ordner entfernt</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Programm beendet</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Suche abgeschlossen</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Nach Regel angekreuzt</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>In Sicherung verschoben</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Gesichert und entfernt</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>Dateien entfernt</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportiert</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Kopien exportiert</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Sicherung wiederherstellen…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Ergebnisse geleert. Regeln anpassen und neu suchen.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Zwei Bilder derselben Gruppe zum Vergleichen markieren.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>Keine passenden Einträge.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>Keine passenden Dateien.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>Noch keine Suchorte.
Auf „+ Ordner“ klicken, links wählen oder Ordner hierher ziehen oder einfügen.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>Nach der Suche erscheinen hier die Ergebnisse.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>Keine doppelten Dateien gefunden.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>Keine doppelten Ordner gefunden.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>Es sind keine übrigen Dateien aufgeführt.
Um sie zu sehen, bei einem Suchort „Übrige Dateien anzeigen“ einschalten und neu suchen.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>Der Filter ändert nur, was die Listen zeigen; Häkchen und Stapelaktionen gelten weiter für alle Ergebnisse.</translation>
    </message>
</context>
</TS>
