<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Bestanden opsommen</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Metagegevens lezen</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Snelle hash</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Volledige hash</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Vergelijkbare inhoud vergelijken</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Hash van het begin</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Vingerafdruk uit steekproeven</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Perceptuele hash van afbeeldingen</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Gevonden: %3  Verwerkt: %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>Bestanden: %1 · Duplicaatgroepen: %2 · Mapgroepen: %3 · Overige: %4 · Vrij te maken: ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>Logboek bekijken</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Gegevensmap openen</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Volledig afsluiten</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>E&amp;xtra</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Hashes berekenen</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Opties…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Over Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Lokaal · Geen reclame · Beeldhash: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Locatie → ② Regels → ③ Bekijken en opruimen</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Kies eerst een map</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Klik daarna links op Scan starten</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Vergelijkingsregels instellen</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Duplicaten bekijken en opruimen</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Vink de overtollige kopieën aan; maak bij twijfel eerst een back-up</translation>
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
        <translation>Duplicaten aanvinken en opruimen</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Schakel minstens één scanlocatie in.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Scan bezig: regels en locaties zijn vergrendeld.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Scan bevestigen</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Scan starten</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>Niet meer tonen</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Lokaal · Beeldhash: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Wordt geannuleerd...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Scan voltooid · Beeldhash: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>In de prullenbak</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>In een back-upmap</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>In een momentopname</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>Niet leesbaar (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Scan mislukt</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Draagbare modus</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Standaardmodus</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>Blijft actief in het systeemvak. Volledig afsluiten kan via het menu van het pictogram.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Hoofdvenster tonen</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Volledig afsluiten</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Dubbele bestanden vinden en opruimen</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Duplicaten opruimen</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Stappen</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Locatie kiezen</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Regels</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Bekijken en opruimen</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>Tijdens de scan is een onbekende fout opgetreden</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Scan geannuleerd</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Verwisselbare schijf</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Lokale schijf</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Netwerkstation</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Optisch station</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>RAM-schijf</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>Terugzetten mislukt: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>De back-up is beschadigd; niet teruggezet: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Teruggezet, maar de back-up kon niet worden verwijderd: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>De back-upindex kon niet worden geschreven: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>Op de oorspronkelijke plaats staat al een bestand; niet teruggezet: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>Verplaatsen naar de back-upmap mislukt: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Gewijzigd sinds de scan, behouden: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>Het te behouden bestand is gewijzigd; deze kopie is niet verwerkt: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>Misschien hetzelfde bestand als het te behouden bestand; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>Doelmap kon niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>Doel bestaat al: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>Op de plaats van de koppeling staat al iets: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>Geen recht om symbolische koppelingen te maken (ontwikkelaarsmodus inschakelen of als administrator uitvoeren): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>Verwijderen mislukt: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>Map is niet meer leeg of mag niet worden verwijderd: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>Verplaatsen mislukt: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>Kopiëren mislukt: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>Harde koppeling kon niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>Symbolische koppeling kon niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Bestand niet gevonden: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>Het doel van de koppeling is geen bruikbaar bestand: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>Het bestand kon niet worden teruggeplaatst; het is uit de back-up terug te zetten: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>Verplaatsen naar prullenbak niet mogelijk; bestand behouden: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>Kan het logboek van de opruiming niet schrijven: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Een ander programma gebruikt het logboek van de opruiming: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>Het logboek van de opruiming is beschadigd; alleen het gave deel is gelezen: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>Kan het logboek van de opruiming niet lezen (beschadigd of van een andere computer): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>Kan niet opnieuw worden gemaakt; de inhoud is niet met het te behouden bestand vergeleken: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>Kan niet opnieuw worden gemaakt; het te behouden bestand ontbreekt of is gewijzigd: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>Niet meer in de Prullenbak; kan niet worden teruggezet: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>Niet meer daar of gewijzigd; niet teruggezet: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>De map of schijf ontbreekt; niet teruggezet: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Teruggezet, maar de koppeling kon niet worden verwijderd: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Teruggezet, maar tijd of rechten konden niet worden ingesteld: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Verplaatsen naar prullenbak mislukt (code %1, bestanden: %2)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>Niet in de prullenbak, staat nog op zijn plaats: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Nieuwste bestand behouden</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Oudste bestand behouden</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Minst diepe pad behouden</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Diepste pad behouden</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Back-upmap kiezen</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Geavanceerd (behouden, back-up, …)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Te behouden</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Verborgen bestanden overslaan</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Systeemmappen uitsluiten</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Back-up vóór verwijderen</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Back-upmap</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Te scannen stations</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Vink aan wat in de lijst met scanlocaties komt (de scan begint nog niet).
Systeemmappen blijven uitgesloten. Denk goed na voordat het hele systeemstation wordt gescand.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Aan lijst toevoegen</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>Geen stations aangevinkt.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>Systeemstation scannen?</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>Er is een systeemstation aangevinkt. Het hele station scannen duurt langer; systeemmappen blijven uitgesloten.
Aan de lijst toevoegen?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Toevoegen bevestigen</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Stations voor de lijst met scanlocaties: %1 (de scan begint nog niet)
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>Geen scanbare stations gevonden.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Uit te sluiten map kiezen</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Uitgesloten mappen</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Uitsluiten</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Uit lijst</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Een map kiezen die niet wordt gescand</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>De geselecteerde mappen niet langer uitsluiten</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Bladeren</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Blader door mappen en voeg ze met → toe aan de scanlocaties;
of sleep mappen uit de Verkenner naar de lijst.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Geselecteerde mappen aan de scanlocaties toevoegen</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Te scannen map kiezen</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>Eén scanlocatie per regel; Status = aan/uit; Beschermd = overslaan.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Map</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Station</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Uit lijst halen</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Lijst leegmaken</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Een map kiezen om aan de scanlocaties toe te voegen</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Opgenomen</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Beschermd</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>Niet beschermd</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Ja</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 Nee</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Beschermd</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Submappen scannen</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Duplicaten zoeken</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Overige bestanden tonen</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Duplicaten</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Zelfde naam</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 Lege bestanden</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
Deze map is nu niet te vinden.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Scanlocaties</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Bureaublad</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Muziek</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Snelkeuze</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Lokale schijf (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Scan bezig; bulkacties wachten.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>‘Dubbele mappen’ is alleen om te bekijken; verwijderen en exporteren kan bij ‘Dubbele bestanden’.</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>‘Overige bestanden’ is alleen om te bekijken; aanvinken kan bij ‘Dubbele bestanden’.</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>Vink na de scan links duplicaten aan en voer dan bulkacties uit.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>Aangevinkte bestanden: %1</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Groep</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Mapgroep %1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Grootte onbekend</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 vrij</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>Geen naam</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·Systeemstation</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>Het bestand bestaat niet meer of is niet bereikbaar</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>De afbeelding is te groot voor een voorbeeld</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>Deze afbeelding is niet te lezen</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Vinkje</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>Bestand / groep</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Groep %1  (bestanden: %2, vrij te maken: %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>Alle bestanden van deze groep zijn aangevinkt; er blijft geen enkel bestand over.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Pad: %1
Grootte: %2
Gewijzigd: %3
Extensie: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Afmetingen: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Camera: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Opname: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Artiest: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Titel: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Afbeeldingen</translation>
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
        <translation>Exact gelijk</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Bijna gelijk</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Sterk gelijkend</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Gelijkend</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Enigszins gelijkend</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Vingerafdruk uit steekproeven (meerdere plaatsen)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Bij benadering (begin van ≈2 min)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Bij benadering (begin van ≈30 s)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Exacte hash van het hele bestand</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Alleen op tags vergelijken</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Hash van het begin</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Steekproeven uit het hele bestand (langzamer)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Alleen tonen</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Moet gelijk zijn</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>Geen grens</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Beeldgelijkenis: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Draaiing</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Spiegeling</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Varianten: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Vergelijking: zelfde inhoud (byte voor byte)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Vergelijking: vergelijkbare inhoud (≥ %1% van de steekproeven gelijk)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Vergelijking: inhoud negeren (op naam, grootte, datum)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Audiovergelijking: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Videovergelijking: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Scanlocaties: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … nog %1</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Uitgesloten mappen: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Grootte: %1 – %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Alleen extensies: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Zonder extensies: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>Verborgen bestanden</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>Systeemmappen</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Overslaan: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Controleer de scaninstellingen:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Modus: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>De scan is lokaal; er worden geen bestanden geüpload.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Opnametijd</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Cameramerk</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Cameramodel</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>Objectief</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>Diafragma</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>Belichtingstijd</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>Brandpuntsafstand</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Artiest</translation>
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
        <translation>Tracknummer</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Jaar</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Tekstschrijver</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Bitsnelheid</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Samplefrequentie</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Regisseur</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Bulkacties</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Aanvinken volgens regel</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Alle duplicaten aanvinken</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Vinkjes omkeren</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Resultaten leegmaken</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>Naar back-up verplaatsen</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Aangevinkte verwijderen</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>Bestandsvoorbeeld</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Selecteer een bestand voor een voorbeeld</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Map: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>Geen voorbeeld
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Openen in Verkenner</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Bovenliggende map openen</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Pad kopiëren</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Mappad kopiëren</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>Nog geen scan. Kies een modus, voeg mappen toe en klik op Scan starten.</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>Weergave:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Miniaturen</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>Dubbele bestanden</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Dubbele mappen</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Overige bestanden</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Alles uitvouwen</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Alles samenvouwen</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Afbeeldingen vergelijken (selecteer er 2)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Alle duplicaten in groep aanvinken</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Audiovergelijking</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>De audiovingerafdruk berust op steekproeven en is grover dan Chromaprint.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Audiotags</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>Bestandstypen</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Extensies</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Extensies van de huidige modus</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>Aangevinkt gelden de extensies van de huidige modus, anders alleen de lijst ‘Opgenomen’.</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Uitgesloten</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>Bijvoorbeeld: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Gescheiden door komma’s, puntkomma’s of spaties; * of *.* staat voor alle</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>Meer RAW-indelingen bij afbeeldingen</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>Bij afbeeldingen ook RAW-bestanden van camera’s zoals arw, dng, rw2, orf en srw scannen;
raw, cr2 en nef worden altijd gescand. Geldt alleen zolang de lijst ‘Opgenomen’ leeg is.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>Bestandsgrootte</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Elke grootte</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Minimaal</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Maximaal</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Elke datum</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>Vanaf deze dag</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Tot en met deze dag</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>Meer kenmerken</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Inhoudsvergelijking</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Zelfde inhoud</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Vergelijkbare inhoud</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Inhoud negeren</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Er geldt altijd één van de drie:
• Zelfde inhoud = exacte bytes (standaard)
• Vergelijkbare inhoud = bytes bij benadering gelijk
• Inhoud negeren = alleen op metagegevens</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Minimale overeenkomst van de steekproeven</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>Leest geen inhoud; groepeert op de kenmerken hieronder.</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Zelfde bestandsnaam</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Zelfde extensie</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Vergelijkbare bestandsnamen</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>‘Copy’, ‘(2)’ enz. in bestandsnamen negeren</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>ook in andere talen</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Negeert ook wat systemen en bestandsbeheerders in andere talen aan de namen van kopieën toevoegen, zoals ‘- Kopie’ of ‘(otra copia)’</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Zelfde grootte</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Eenheid van de marge</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Zelfde aanmaakdatum</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Alleen dag</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Zelfde wijzigingsdatum</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Zelfde station</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Mappen en paden</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Zelfde mapnaam</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Hele pad vergelijken</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Zelfde diepte van mappad</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Pad vanaf scanlocatie vergelijken</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Groepen binnen één map negeren</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Tekstvergelijking</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Hoofdlettergevoelig</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Marge bij vergelijkbare tekst</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>In hoeveel tekens vergelijkbare bestandsnamen mogen verschillen</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Beeldvergelijking</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Ingesloten JPEG in RAW-bestanden gebruiken (sneller)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Prestaties</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Cache voor beeldkenmerken gebruiken</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Beeldtags</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Nauwkeurigheid</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Beeldgelijkenis</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Afmetingen</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Zelfde afmetingen</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Beeldverhouding</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Zelfde beeldverhouding</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Gedraaid of gespiegeld</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Gedraaide vinden</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Gespiegelde vinden</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Ook dezelfde kleurverdeling vereisen</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Groeperen op tijd</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Groeperen op opnametijd</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Grootste verschil tussen opnametijden</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Groeperen op GPS</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Groeperen op GPS-locatie</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Grootste afstand tussen plaatsen</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Vergelijkingsmethode</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>Om alleen op tags te vergelijken: zet minstens één tag op ‘Moet gelijk zijn’</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Duur vergelijken</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Harde koppelingen naar hetzelfde bestand negeren</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>Een harde koppeling is een andere naam voor dezelfde gegevens; verwijderen maakt geen ruimte vrij.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Vergelijking</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Aangevinkt = tags worden vergeleken; anders worden de tags van deze groep genegeerd</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Toevoegen</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Videovergelijking</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Benadering uit steekproeven van bytes, geen vingerafdruk per beeld.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Uren:minuten:seconden.milliseconden</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Videotags</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>Gekopieerde bestanden: %1</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>Kan bestand niet schrijven.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>Kan script niet schrijven.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Onbekende exportindeling.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>Een batchscript kan dit bestand niet exact noemen; als opmerking geschreven: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix: rapport van dubbele bestanden</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Gemaakt: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Scanmodus: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Bereik: alleen aangevinkte bestanden</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Let op: paden geanonimiseerd (gebruikersnaam verborgen)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Groep %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Sleutel: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (bestanden: %1)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Mislukt:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>Bestanden aangevinkt volgens regel</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Duplicaten in elke groep aangevinkt (het eerste blijft)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Vinkjes omgekeerd</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Vinkjes bijwerken…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Gestopt; de resterende bestanden zijn niet verwerkt</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Vink eerst bestanden aan.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Bestanden (%1) naar de back-upmap verplaatsen:
%2
Doorgaan?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Verplaatsen bevestigen</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>Naar back-up verplaatsen… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>Naar back-up verplaatste bestanden: %1. %2
Scan opnieuw.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Vink eerst de te verwijderen bestanden aan.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Back-up maken en verwijderen… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Waarschuwing bij back-up</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>Van enkele bestanden mislukte de back-up:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>Bestanden verwijderd na back-up: %1. Scan opnieuw.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Definitief verwijderen bevestigen</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Definitief verwijderen (bestanden: %1)? Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Bestanden verwijderen… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Scan opnieuw om de resultaten bij te werken.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>Verwerkte bestanden: %1. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Back-upindex lezen…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>De back-upindex is leeg.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Terugzetten bevestigen</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>Wordt teruggezet:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Bestanden terugzetten… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>Teruggezette bestanden: %1.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>Opnieuw verwijderde bestanden: %1.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>Bestand teruggezet.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Vindt snel dubbele bestanden en ruimt ze veilig op. Vergelijkt algemene inhoud, vergelijkbare afbeeldingen, audio op vingerafdruk en video op miniatuur.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Draagbare modus (gegevens in \Data naast het programma)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Standaardmodus (gegevens in AppData van de gebruiker)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Versie %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Gegevensmap: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Dank aan opensourcesoftware</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Bibliotheek</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Licentie</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>CSV-lijst (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Tekstlijst (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Bestanden naar map kopiëren</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Batchscript maken (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Tekst (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Batch (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Doelmap kiezen</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Scanresultaten exporteren</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Exportindeling</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>Het script verwijdert elk genoemd bestand, ook de te behouden bestanden; zet ‘Alleen aangevinkte bestanden’ aan om alleen die te verwijderen</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Uitvoerpad:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Bladeren...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Alleen aangevinkte bestanden</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Met groepssleutel en wijzigingstijd</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Paden anonimiseren (gebruikersnaam verbergen)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>Een geanonimiseerd batchscript is alleen om te lezen: bestanden met verborgen gebruikersnaam verwijdert het niet</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Wordt gestopt…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>Bezig</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>Stopt na het huidige bestand</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>Naar prullenbak verplaatsen</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Definitief verwijderen</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>Naar map verplaatsen</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Vervangen door symbolische koppeling</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Vervangen door harde koppeling</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Bestanden verwijderen</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>Te verwerken bestanden: %1. Kies hoe ze worden verwijderd:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Manier van verwijderen</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Doelmap:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Doel van koppeling:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>Te behouden bestand (voor koppelingen)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>Mag leeg blijven als eerst een back-up wordt gemaakt: elke koppeling leidt dan naar het niet-aangevinkte bestand van haar groep</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Back-up vóór verwijderen</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Hashes berekenen - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Bestanden kiezen</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Map kiezen</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Opnieuw berekenen</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Algoritme</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>Met een map komen ook de bestanden van alle submappen mee</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Bestanden en mappen kunnen hierheen worden gesleept</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Bestanden kiezen</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Map kiezen</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Bestanden zoeken…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Hashes berekenen…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Hash kopiëren</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Bestandsnaam kopiëren</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Afbeeldingen vergelijken</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>Bestand A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>Bestand B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Lezen…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>Het logboek is leeg.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>%1 van %2 regels</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Logboek filteren</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Selectie kopiëren</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Alle beeldhashes en histogrammen verwijderen uit:
%1

De volgende beeldscan duurt langer. Doorgaan?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Cache met beeldkenmerken leegmaken</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>Cache met beeldkenmerken leeggemaakt.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>Enkele cachebestanden konden niet worden verwijderd.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  Algemeen</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Thema</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  Over</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>Bij het sluiten van het hoofdvenster</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>Naar systeemvak minimaliseren (aanbevolen)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Programma afsluiten</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Geluid als de scan klaar is</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Bevestiging vragen vóór de scan</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>Uitgeschakeld begint de scan meteen; ‘Niet meer tonen’ in het bevestigingsvenster doet hetzelfde.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Algoritme voor inhoudshashes</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (standaard, behoudt bewaarde hashes)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (sneller, sterker; hashes worden opnieuw berekend)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Geldt alleen voor de snelle en volledige hashes bij zelfde inhoud; steekproeven van vergelijkbare inhoud blijven MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Cache en gegevens</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>De cache met beeldkenmerken versnelt het zoeken naar dubbele afbeeldingen. Plaats:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Verwijdert bewaarde hashes en histogrammen; de volgende scan berekent ze opnieuw</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Licht (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Donker (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Gebruikt de Qt-stijl Fusion. Geldt meteen en wordt bewaard.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Back-up terugzetten</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>Terug te zetten bestanden:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Op pad filteren</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
Bestanden die niet teruggeplaatst kunnen worden (%1):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
Bestanden die niet opnieuw verwijderd kunnen worden (%1):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>Bestanden die niet worden verwijderd: %1 (%2). Koppelingen worden alleen gemaakt waar het pad vrij is. Maak eerst een back-up om de bestanden door koppelingen te vervangen.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>Bestanden die definitief worden verwijderd: %1 (%2). Ze gaan niet naar de prullenbak en zijn niet terug te halen.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>Bestanden die definitief worden verwijderd: %1 (%2). Ze gaan niet naar de prullenbak, maar kunnen opnieuw worden gemaakt uit de behouden bestanden.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>Bestanden die naar de prullenbak gaan: %1 (%2). Ruimte komt pas vrij als die wordt geleegd.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>Bestanden die naar de back-upmap gaan: %1 (%2). Niets wordt definitief verwijderd.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>Bestanden die naar de back-upmap gaan: %1 (%2). De prullenbak wordt niet gebruikt.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>Bestanden die naar de back-upmap gaan: %1 (%2). De doelmap wordt niet gebruikt.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>Bestanden die naar de back-upmap gaan: %1 (%2). Koppelingen komen in hun plaats.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>Bestanden die naar de doelmap gaan: %1 (%2).</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Niet aangevinkt: vóór prullenbak, verplaatsen en back-up worden alleen steekproeven vergeleken; vóór definitief verwijderen en koppelen altijd de hele inhoud</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Bezet</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Vermeldingen bewaren (dagen):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Alles verwerken</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>De inhoud verschilt van het te behouden bestand; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Bepaalt of ‘Back-up vóór verwijderen’ is aangevinkt als het venster opent; de bestanden gaan naar de back-upmap en worden niet verwijderd</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Oudere verwijderen</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Vermelding verwijderen</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>Bezet in de prullenbak: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>In geschiedenis tonen</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>Bezet in back-up: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>Bezet in de back-upmap: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Mislukt: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>Vermeldingen die worden verwijderd: %1. De bestanden blijven ongemoeid, maar deze opruimingen kunnen hier niet meer ongedaan worden gemaakt. Doorgaan?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>Bestanden terugplaatsen: %1. Doorgaan?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>Bestanden opnieuw verwijderen: %1 (%2). Doorgaan?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>De bestanden van deze opruiming in de back-upmap (%1) worden definitief verwijderd en kunnen daar niet meer uit worden teruggezet. Doorgaan?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Onderbroken</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Gestopt; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>Verwijderde back-upbestanden: %1.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Ongedaan gemaakt</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Teruggeplaatst</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Vrijgekomen</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>Vrijgekomen: %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>Eigenaar of rechten verschillen van het doel van de koppeling; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Maakte %1 ongedaan</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Selectie ongedaan maken</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Opruiming ongedaan maken</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Opruiming ongedaan maken</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Opnieuw opruimen</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>Het bestand ligt nog in de prullenbak en kan daaruit worden teruggezet: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>Het bestand bestaat al. Vervangen?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>Bestanden / behouden</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>Het bestand is in gebruik door een ander programma; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Methode / huidige plaats</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>Kan het logboek niet schrijven: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>Kan de geschiedenis niet schrijven; geen bestand verwerkt: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>Kan de back-upindex niet bijwerken: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>Kan niet garanderen dat het te behouden bestand op de schijf staat; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Onleesbaar</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>Geen resultaat vastgelegd</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Tijd / bestand</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>Vermeldingen die niet konden worden verwijderd: %1.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>Groepen waarvan geen bestand overblijft: %1.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Back-ups verwijderen… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Bestanden controleren… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Hele inhoud vergelijken vóór elke verwijdering</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Eén per groep uitvinken</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Altijd</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>Geen bestand blijft over</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>Er zijn geen bestanden om terug te plaatsen.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>Er zijn geen bestanden om opnieuw te verwijderen.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>Er zijn geen oudere vermeldingen.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>Er zijn nog geen opruimingen.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Geschiedenis van opruimingen</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Geschiedenis van opruimingen…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>De doelmap bevat het bestand; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Harde koppeling</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Vervangen bevestigen</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>Naar prullenbak</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Lege mappen verwijderen</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>Naar map verplaatst</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Symbolische koppeling</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>Het te behouden bestand is er niet meer, of is via een ander pad dit bestand zelf; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Deels ongedaan gemaakt</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Sommige groepen komen niet op inhoud overeen; hun bestanden worden niet vergeleken voor ze worden verwijderd.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>%1 vrijmaken</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Back-ups vrijmaken</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Geselecteerde terugzetten</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Bestanden kopiëren… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Exporteren… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>Exporteren mislukt.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Waarschuwing bij exporteren</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Enkele bestanden zijn niet geëxporteerd:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>Bestanden gekopieerd naar: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Geëxporteerd: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>Geen resultaten om te exporteren.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Geef een uitvoerpad op.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… meer regels: %1, zie de details</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… niet getoonde regels: %1</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>Het doel van de koppeling hoort bij een andere groep; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>Geen behouden bestand om naar te koppelen; niet verwerkt: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>Bestanden: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>Bestanden: %1 in %2,%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Pad: %1
Grootte: %2 bytes
Gewijzigd: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Programma gestart</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Scan gestart</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Back-up teruggezet</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Te verwijderen lege mappen</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Lege mappen verwijderd</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Programma afgesloten</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Scan voltooid</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Aangevinkt volgens regel</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>Naar back-up verplaatst</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Verwijderd na back-up</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>Bestanden verwijderd</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Geëxporteerd</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Kopieën geëxporteerd</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Back-up terugzetten…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Resultaten leeggemaakt. Pas de regels aan en scan opnieuw.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Selecteer twee afbeeldingen van dezelfde groep om te vergelijken.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>Geen overeenkomende regels.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>Geen overeenkomende bestanden.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>Nog geen scanlocaties.
Klik op ‘+ Map’, kies links, of sleep of plak mappen hier.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>Na een scan verschijnen de resultaten hier.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>Geen dubbele bestanden gevonden.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>Geen dubbele mappen gevonden.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>Er zijn geen overige bestanden vermeld.
Zet bij een scanlocatie ‘Overige bestanden tonen’ aan en scan opnieuw om ze te zien.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>Het filter verandert alleen wat de lijsten tonen; vinkjes en bulkacties gelden nog steeds voor alle resultaten.</translation>
    </message>
</context>
</TS>
