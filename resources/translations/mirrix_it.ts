<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Ricerca dei file</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Lettura dei metadati</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Hash rapido</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Hash completo</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Confronto di contenuti simili</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Hash dell'inizio</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Impronta a campioni</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Hash percettivo delle immagini</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Trovati: %3  Elaborati: %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>File: %1 · Gruppi di duplicati: %2 · Gruppi di cartelle: %3 · Altri: %4 · Recuperabile: ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>Registro delle operazioni</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Apri cartella dei dati</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Esci del tutto</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Calcolo hash</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Opzioni…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Informazioni su Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Locale · Senza pubblicità · Hash immagini: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Percorsi → ② Regole → ③ Anteprima e pulizia</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Scegli una cartella per iniziare</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Poi fai clic su “Avvia scansione” a sinistra</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Imposta le regole di confronto</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Controlla i duplicati e fai pulizia</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Spunta le copie da rimuovere; nel dubbio fai prima un backup</translation>
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
        <translation>Spunta i duplicati e fai pulizia</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Attiva almeno un percorso di scansione.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Scansione in corso: regole e percorsi bloccati.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Conferma scansione</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Avvia scansione</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>Non mostrare più</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Locale · Hash immagini: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Annullamento...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Scansione completata · Hash immagini: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>Nel Cestino</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>In una cartella di backup</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>In un’istantanea</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>Non leggibili (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Scansione non riuscita</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Modalità portatile</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Modalità standard</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>Mirrix è ancora attivo nell'area di notifica. Per uscire del tutto usa il menu dell'icona.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Mostra finestra principale</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Esci del tutto</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Trova ed elimina i file duplicati</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Pulizia duplicati</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Passaggi</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Scegli percorsi</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Regole</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Anteprima e pulizia</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>Errore sconosciuto durante la scansione</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Scansione annullata</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Disco rimovibile</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Disco locale</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Unità di rete</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Unità ottica</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>Disco RAM</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>Ripristino non riuscito: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>Il backup è danneggiato; non ripristinato: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Ripristinato, ma non è stato possibile rimuovere il backup: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>Impossibile scrivere l&apos;indice di backup: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>Nel percorso originale esiste già un file; ripristino annullato: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>Impossibile spostare nella cartella di backup: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Modificato dopo la scansione, conservato: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>Il file da conservare è stato modificato; questo non è stato toccato: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>Potrebbe coincidere con il file da conservare; non toccato: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>Impossibile creare la cartella di destinazione: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>La destinazione esiste già: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>Il percorso del collegamento esiste già: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>Manca il diritto di creare collegamenti simbolici (attiva la modalità sviluppatore o esegui come amministratore): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>Impossibile eliminare: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>La cartella non è più vuota o non può essere eliminata: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>Impossibile spostare: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>Impossibile copiare: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>Impossibile creare il collegamento fisico: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>Impossibile creare il collegamento simbolico: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>File non trovato: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>La destinazione del collegamento non è un file utilizzabile: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>Impossibile rimettere a posto il file; si può ripristinare dal backup: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>Impossibile spostare nel Cestino; file conservato: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>Impossibile scrivere il registro della pulizia: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Un altro programma sta usando il registro della pulizia: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>Il registro della pulizia è danneggiato; è stata letta solo la parte intatta: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>Impossibile leggere il registro della pulizia (danneggiato o di un altro computer): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>Impossibile ricreare; il contenuto non è stato confrontato con il file da conservare: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>Impossibile ricreare; il file da conservare non esiste più o è stato modificato: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>Non è più nel Cestino; impossibile ripristinare: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>Non è più lì o è stato modificato; non ripristinato: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>La cartella o l’unità non esiste; non ripristinato: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Ripristinato, ma non è stato possibile rimuovere il collegamento: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Ripristinato, ma non è stato possibile reimpostare data o autorizzazioni: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Impossibile spostare nel Cestino (codice %1, file: %2)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>Non spostato nel Cestino, ancora al suo posto: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Conserva il file più recente</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Conserva il file più vecchio</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Conserva il percorso meno profondo</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Conserva il percorso più profondo</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Scegli la cartella di backup</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Avanzate (conservazione, backup, …)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Regola</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Salta i file nascosti</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Escludi le cartelle di sistema</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Backup prima di eliminare</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Cartella di backup</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Unità da scansionare</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Spunta le unità da aggiungere all'elenco (la scansione non parte ancora).
Le cartelle di sistema restano escluse. Rifletti bene prima di scansionare tutta l'unità di sistema.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Aggiungi all'elenco</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>Nessuna unità spuntata.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>Scansionare l'unità di sistema?</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>Hai spuntato un'unità di sistema. Scansionarla tutta richiede più tempo; le cartelle di sistema restano escluse.
Aggiungerla all'elenco?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Conferma aggiunta</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Unità da aggiungere all'elenco: %1 (la scansione non parte ancora)
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>Nessuna unità scansionabile trovata.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Scegli una cartella da escludere</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Cartelle escluse</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Escludi</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Togli</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Scegli una cartella in cui la scansione non entra</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>Togli le cartelle selezionate da quelle escluse</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Sfoglia cartelle</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Sfoglia le cartelle e aggiungile con → ai percorsi di scansione;
oppure trascinale da Esplora file nell'elenco.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Aggiungi le cartelle selezionate ai percorsi di scansione</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Scegli una cartella da scansionare</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>Un percorso per riga; Stato = attivo/disattivato; Protetto = saltato.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Cartella</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Unità</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Togli dall'elenco</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Svuota elenco</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Scegli una cartella da aggiungere ai percorsi di scansione</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Incluso</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Protetto</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>Non protetto</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Sì</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 No</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Protetto</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Scansiona sottocartelle</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Cerca duplicati</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Mostra altri file</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Duplicati</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Stesso nome</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 File vuoti</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
Al momento questa cartella non è reperibile.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Percorsi di scansione</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Percorsi rapidi</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Disco locale (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Scansione in corso; azioni in blocco sospese.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>“Cartelle duplicate” è di sola lettura; elimina ed esporta da “File duplicati”.</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>“Altri file” è di sola lettura; per spuntare i file passa a “File duplicati”.</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>Dopo la scansione spunta i duplicati a sinistra, poi usa le azioni in blocco.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>File spuntati: %1</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Gruppo di cartelle %1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Percorso cartella</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>Numero di file</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Capacità sconosciuta</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 liberi</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>Senza nome</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·Unità di sistema</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>Il file non esiste più o non è raggiungibile</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>L'immagine è troppo grande per l'anteprima</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>Impossibile leggere questa immagine</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Spunta</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>File / gruppo</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Gruppo %1  (file: %2, recuperabile: %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>Tutti i file di questo gruppo sono spuntati; non ne resterà nessuno.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Percorso: %1
Dimensione: %2
Modificato: %3
Estensione: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Misure: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Fotocamera: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Scatto: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Artista: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Titolo: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Immagini</translation>
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
        <translation>Identiche</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Quasi identiche</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Molto simili</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Simili</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Vagamente simili</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Impronta a campioni (hash in più punti)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Approssimativo (primi ≈2 min)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Approssimativo (primi ≈30 s)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Hash esatto dell'intero file</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Confronta solo i tag</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Hash dell'inizio</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Campioni dell'intero file (più lento)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Mostra soltanto</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Deve coincidere</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>Nessun limite</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Somiglianza immagini: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Specchio</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Varianti: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Confronto: stesso contenuto (byte per byte)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Confronto: contenuto simile (campioni uguali ≥ %1%)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Confronto: contenuto ignorato (nome, dimensione, data)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Confronto audio: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Confronto video: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Percorsi di scansione: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … altri %1</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Cartelle escluse: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Dimensione: %1 – %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Solo estensioni: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Estensioni escluse: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>File nascosti</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>Cartelle di sistema</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Saltati: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Controlla le impostazioni della scansione:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Modalità: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>La scansione è locale; nessun file viene inviato in rete.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Data di scatto</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>Commento</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>Obiettivo</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>Diaframma</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>Tempo di posa</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Genere</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Paroliere</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Campionamento</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Regista</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Azioni in blocco</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Spunta secondo la regola</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Spunta tutti i duplicati</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Inverti le spunte</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Svuota risultati</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>Sposta nel backup</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Elimina spuntati</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>Anteprima del file</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Seleziona un file per l'anteprima</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Cartella: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>Nessuna anteprima
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Apri in Esplora file</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Apri cartella del file</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Copia percorso</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Copia percorso cartella</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>Ancora nessuna scansione. Scegli una modalità, aggiungi cartelle e fai clic su “Avvia scansione”.</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>Vista:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Miniature</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>File duplicati</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Cartelle duplicate</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Altri file</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Espandi tutto</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Comprimi tutto</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Confronta immagini (selezionane 2)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Spunta tutti i duplicati del gruppo</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Confronto audio</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>L'impronta audio si basa su campioni ed è meno fine di Chromaprint.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Tag audio</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>Tipi di file</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Estensioni</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Estensioni della modalità attuale</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>Se spuntato valgono le estensioni della modalità attuale, altrimenti solo l'elenco “Incluso”.</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Escluso</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>Per esempio: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Separate da virgole, punti e virgola o spazi; * o *.* vale per tutte</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>Altri formati RAW tra le immagini</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>Tra le immagini scansiona anche file RAW come arw, dng, rw2, orf e srw;
raw, cr2 e nef vengono sempre scansionati. Vale solo se l'elenco “Incluso” è vuoto.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>Dimensione del file</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Qualsiasi dimensione</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Qualsiasi data</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Creato</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>Da questo giorno in poi</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Fino a questo giorno compreso</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>Altri criteri</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Confronto del contenuto</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Stesso contenuto</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Contenuto simile</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Ignora contenuto</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Vale sempre una sola modalità:
• Stesso contenuto = byte identici (predefinito)
• Contenuto simile = byte approssimativamente uguali
• Ignora contenuto = solo criteri sui metadati</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Corrispondenza minima dei campioni</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>Non legge il contenuto; raggruppa secondo i criteri sottostanti.</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Stesso nome</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Stessa estensione</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Nomi simili</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>Ignora “Copy”, “(2)” ecc. nei nomi</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>anche in altre lingue</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Ignora anche ciò che i sistemi e i gestori di file in altre lingue aggiungono ai nomi delle copie, come “- Kopie” o “(otra copia)”</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Stessa dimensione</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Tolleranza</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Unità della tolleranza</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Stessa data di creazione</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Solo giorno</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Stessa data di modifica</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Stessa unità</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Cartelle e percorsi</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Stesso nome di cartella</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Confronta percorso intero</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Stessa profondità del percorso</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Confronta percorso sotto il punto di scansione</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Ignora gruppi in un'unica cartella</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Confronto dei testi</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Distingui maiuscole e minuscole</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Tolleranza dei testi simili</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>In quanti caratteri possono differire i nomi simili</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Confronto immagini</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Usa il JPEG incorporato nei file RAW (più veloce)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Prestazioni</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Usa la cache delle immagini</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Tag delle immagini</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Precisione</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Somiglianza immagini</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Misure</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Stesse misure</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Proporzioni</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Stesse proporzioni</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Immagini ruotate e specchiate</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Trova ruotate</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Trova specchiate</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Richiedi anche la stessa distribuzione dei colori</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Raggruppamento per data</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Raggruppa per data di scatto</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Differenza massima tra gli orari di scatto</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Raggruppa per GPS</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Raggruppa per luogo GPS</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Massima distanza tra i luoghi</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Metodo di confronto</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>Per confrontare solo i tag, imposta almeno un tag su “Deve coincidere”</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Confronta durata</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Ignora i collegamenti fisici allo stesso file</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>Un collegamento fisico è un altro nome degli stessi dati; rimuoverlo non libera spazio.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Confronto</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Spuntato = i tag vengono confrontati; altrimenti i tag di questo gruppo sono ignorati</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Aggiungi</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Confronto video</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Approssimazione da campioni di byte, non un'impronta fotogramma per fotogramma.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Ore:minuti:secondi.millisecondi</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Tag video</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>File copiati: %1</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>Impossibile scrivere il file.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>Impossibile scrivere lo script.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Formato di esportazione sconosciuto.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>Uno script batch non può indicare con esattezza questo file; scritto come commento: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix: rapporto dei file duplicati</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Generato: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Modalità di scansione: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Ambito: solo file spuntati</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Nota: percorsi oscurati (nome utente nascosto)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Gruppo %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Chiave: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (file: %1)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Operazioni non riuscite:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>File spuntati secondo la regola</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Duplicati spuntati in ogni gruppo (il primo resta)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Spunte invertite</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Aggiornamento delle spunte…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Fermato; i file rimanenti non sono stati elaborati</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Spunta prima i file da elaborare.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Spostare i file (%1) nella cartella di backup:
%2
Continuare?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Conferma spostamento</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>Spostamento nel backup… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>File spostati nel backup: %1. %2
Ripeti la scansione.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Spunta prima i file da eliminare.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Backup e rimozione… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Avviso sul backup</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>Alcuni backup non sono riusciti:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>File rimossi con backup: %1. Ripeti la scansione.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Conferma eliminazione definitiva</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Eliminare definitivamente (file: %1)? L'operazione non si può annullare.</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Rimozione dei file… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Ripeti la scansione per aggiornare i risultati.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>File elaborati: %1. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Lettura dell'indice di backup…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>L'indice di backup è vuoto.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Conferma ripristino</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>Verrà ripristinato:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Ripristino dei file… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>File ripristinati: %1.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>File rimossi di nuovo: %1.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>File ripristinato.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Trova in fretta i file duplicati e li elimina in sicurezza. Confronta contenuti generici, immagini simili, audio per impronta e video per miniatura.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Modalità portatile (dati in \Data accanto al programma)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Modalità standard (dati in AppData dell'utente)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Versione %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Cartella dei dati: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Riconoscimenti open source</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Libreria</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Licenza</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>Elenco CSV (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Elenco di testo (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Copia i file in una cartella</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Genera script batch (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Testo (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Batch (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Scegli la cartella di destinazione</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Esporta i risultati</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Formato di esportazione</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>Lo script elimina ogni file elencato, anche quelli da conservare; per eliminare soltanto i file spuntati attiva “Solo i file spuntati”</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Percorso di uscita:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Solo i file spuntati</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Con chiave del gruppo e data di modifica</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Oscura i percorsi (nascondi nome utente)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>Uno script con percorsi oscurati serve solo alla lettura: non elimina i file con il nome utente nascosto</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Arresto…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>Si ferma dopo il file attuale</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>Sposta nel Cestino</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Elimina definitivamente</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>Sposta in una cartella</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Sostituisci con collegamento simbolico</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Sostituisci con collegamento fisico</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Rimuovi file</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>File da elaborare: %1. Scegli come rimuoverli:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Metodo di rimozione</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Cartella di destinazione:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Destinazione collegamento:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>File da conservare (per i collegamenti)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>Può restare vuoto se prima si fa il backup: ogni collegamento porta allora al file non spuntato del suo gruppo</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Backup prima di rimuovere</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Calcolo hash - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Scegli file</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Scegli cartella</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Ricalcola</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Algoritmo</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>Aggiungendo una cartella si prendono anche i file di tutte le sottocartelle</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Qui si possono trascinare file e cartelle</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Scegli file</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Scegli cartella</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Ricerca dei file…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Calcolo degli hash…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Copia hash</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Copia nome file</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Confronta immagini</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>File A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>File B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Lettura…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>Il registro è vuoto.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>%1 di %2 voci</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Registro delle operazioni</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Filtra il registro</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Copia selezione</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Verranno eliminati tutti gli hash e gli istogrammi delle immagini in:
%1

La prossima scansione delle immagini sarà più lenta. Continuare?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Svuota la cache delle immagini</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>Cache delle immagini svuotata.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>Alcuni file della cache non si sono potuti eliminare.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  Generale</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Tema</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  Informazioni</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>Alla chiusura della finestra principale</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>Riduci nell'area di notifica (consigliato)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Esci dal programma</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Scansione</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Segnale acustico a fine scansione</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Chiedi conferma prima della scansione</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>Se disattivato, la scansione parte subito; puoi anche scegliere “Non mostrare più” nella finestra di conferma.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Algoritmo delle impronte dei contenuti</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (predefinito, conserva la cache)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (più veloce e robusto; la cache si ricrea)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Riguarda solo l'hash rapido e quello completo nella ricerca di contenuti identici; i campioni dei contenuti simili usano ancora MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Cache e dati</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>La cache accelera la ricerca delle immagini duplicate. Percorso:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Elimina hash e istogrammi memorizzati; la prossima scansione li ricalcola</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Chiaro (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Scuro (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Usa lo stile Fusion di Qt. Si applica subito e viene salvato.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Ripristina backup</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>File da ripristinare:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Filtra per percorso</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
File che non si possono rimettere a posto (%1):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
File che non si possono rimuovere di nuovo (%1):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>File che non verranno rimossi: %1 (%2). I collegamenti si creano solo dove il percorso è libero. Per sostituire i file con collegamenti, fare prima il backup.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>File da eliminare definitivamente: %1 (%2). Non vanno nel Cestino e non si possono recuperare.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>File da eliminare definitivamente: %1 (%2). Non vanno nel Cestino, ma si possono ricreare dai file conservati.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>File da spostare nel Cestino: %1 (%2). Lo spazio si libera quando viene svuotato.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>File da spostare nella cartella di backup: %1 (%2). Nulla viene eliminato definitivamente.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>File da spostare nella cartella di backup: %1 (%2). Il Cestino non viene usato.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>File da spostare nella cartella di backup: %1 (%2). La cartella di destinazione non viene usata.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>File da spostare nella cartella di backup: %1 (%2). Al loro posto vanno collegamenti.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>File da spostare nella cartella di destinazione: %1 (%2).</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Senza la spunta, prima di spostare nel Cestino, spostare e fare il backup si confrontano solo campioni; prima di eliminare definitivamente e collegare, sempre tutto il contenuto</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Occupato</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Conserva le voci (giorni):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Elabora tutto</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>Il contenuto è diverso dal file da conservare; non toccato: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Decide se «Backup prima di rimuovere» ha la spunta all'apertura della finestra; i file vanno nella cartella di backup e non vengono eliminati</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Elimina le voci precedenti</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Elimina voce</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>Occupato nel Cestino: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>Mostra nella cronologia</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>Occupato nel backup: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>Occupato nella cartella di backup: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Non riuscito: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>Voci della cronologia da eliminare: %1. I file non vengono toccati, ma queste pulizie non si potranno più annullare qui. Continuare?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>File da rimettere a posto: %1. Continuare?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>File da rimuovere di nuovo: %1 (%2). Continuare?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>I file di questa pulizia nella cartella di backup (%1) verranno eliminati definitivamente e non si potranno più ripristinare. Continuare?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Interrotta</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Interrotto; non toccato: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>File di backup eliminati: %1.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Completata</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Annullata</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Rimesso a posto</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Rimosso</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Liberato</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>Liberato: %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>Proprietario o permessi diversi dalla destinazione del collegamento; non toccato: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Ha annullato %1</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Annulla selezionati</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Annulla questa pulizia</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Annulla pulizia</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Ripeti pulizia</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>Il file è ancora nel Cestino e si può ripristinare da lì: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>Il file esiste già. Sostituirlo?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>File / conservato</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>Il file è in uso da un altro programma; non toccato: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Metodo / dove si trova</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>Impossibile scrivere il registro delle operazioni: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>Impossibile scrivere la cronologia della pulizia; nessun file toccato: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>Impossibile aggiornare l'indice di backup: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>Impossibile garantire che il file da conservare sia sul disco; non toccato: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Illeggibile</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>Nessun esito registrato</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Data / file</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>Voci che non si sono potute eliminare: %1.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>Gruppi in cui non resterebbe alcun file: %1.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Eliminazione dei backup… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Controllo dei file… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Confronta tutto il contenuto prima di ogni rimozione</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Togli una spunta per gruppo</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>Nessun file conservato</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>Nessun file da rimettere a posto.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>Nessun file da rimuovere di nuovo.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>Nessuna voce precedente.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>Nessuna pulizia registrata.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Cronologia delle pulizie</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Cronologia delle pulizie…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>La cartella di destinazione contiene il file; non toccato: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Collegamento fisico</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Conferma sostituzione</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>Spostati nel Cestino</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Elimina cartelle vuote</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>Spostati in cartella</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Collegamento simbolico</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>Il file da conservare non c'è più o è questo stesso file per un altro percorso; non toccato: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Annullata in parte</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Alcuni gruppi non corrispondono per contenuto; i loro file non vengono confrontati prima della rimozione.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>Libera %1</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Libera i backup</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Ripristina selezionati</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Copia dei file… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Esportazione… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>Esportazione non riuscita.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Avviso sull'esportazione</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Alcuni file non sono stati esportati:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>File copiati in: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Esportato: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>Nessun risultato da esportare.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Indica il percorso di uscita.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… altre righe: %1; vedi i dettagli</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… altre righe non mostrate: %1</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>La destinazione del collegamento è di un altro gruppo; non elaborato: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>Nessun file conservato a cui collegare; non elaborato: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>File: %1 in %2,%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Percorso: %1
Dimensione: %2 byte
Modificato: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Programma avviato</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Avvio scansione</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Backup ripristinato</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Cartelle vuote da rimuovere</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Cartelle vuote rimosse</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Chiusura del programma</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Scansione completata</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Spuntati secondo la regola</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>Spostati nel backup</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Rimossi con backup</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>File rimossi</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Esportazione</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Copie esportate</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Ripristina backup…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Risultati svuotati. Modifica le regole e ripeti la scansione.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Seleziona due immagini dello stesso gruppo da confrontare.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>Nessuna voce corrispondente.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>Nessun file corrispondente.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>Nessun percorso di scansione.
Fai clic su “+ Cartella”, scegli a sinistra, oppure trascina o incolla qui le cartelle.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>I risultati appariranno qui dopo una scansione.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>Nessun file duplicato trovato.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>Nessuna cartella duplicata trovata.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>Non sono elencati altri file.
Per vederli, attiva “Mostra altri file” per un percorso e ripeti la scansione.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>Il filtro cambia solo ciò che gli elenchi mostrano; spunte e azioni in blocco valgono ancora per tutti i risultati.</translation>
    </message>
</context>
</TS>
