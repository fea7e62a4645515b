<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Énumération des fichiers</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Lecture des métadonnées</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Hachage rapide</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Hachage complet</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Comparaison des contenus similaires</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Hachage du début du fichier</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Hachage par échantillons</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Hachage perceptuel d’images</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Énumérés : %3  Traités : %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>Fichiers : %1 · Groupes de doublons : %2 · Groupes de dossiers : %3 · Restants : %4 · Récupérable : ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>Afficher le journal des opérations</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Ouvrir le dossier de données</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Quitter complètement</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Outil de hachage</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Options…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>À propos de Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Local · Sans publicité · Hachage d’images : %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Emplacement → ② Règles → ③ Aperçu et nettoyage</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Choisissez un dossier pour commencer</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Cliquez ensuite sur « Lancer l’analyse » à gauche</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Configurer les règles de correspondance</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Vérifier les doublons et nettoyer</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Cochez les copies à supprimer ; en cas de doute, sauvegardez-les d’abord</translation>
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
        <translation>Cocher les doublons et nettoyer</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Activez au moins un emplacement d’analyse.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Analyse en cours : règles et emplacements verrouillés.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Confirmer l’analyse</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Lancer l’analyse</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Local · Hachage d’images : %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Annulation...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Analyse terminée · Moteur de hachage d’images : %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>Dans la Corbeille</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>Dans un dossier de sauvegarde</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>Dans un instantané</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>Illisibles (%1) : %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Échec de l’analyse</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Mode portable</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Mode standard</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>Mirrix reste actif dans la zone de notification. Utilisez le menu de son icône pour quitter complètement.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Afficher la fenêtre principale</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Quitter complètement</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Recherche et nettoyage des fichiers en double</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Nettoyage des doublons</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Règles de correspondance</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Aperçu et nettoyage</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>Une erreur inconnue s’est produite pendant l’analyse</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Analyse annulée</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Disque amovible</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Disque local</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Lecteur réseau</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Lecteur optique</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>Disque virtuel (RAM)</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>Échec de la restauration : %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>La sauvegarde est endommagée&#xa0;; non restaurée&#xa0;: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Restauré, mais la sauvegarde n’a pas pu être supprimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>Impossible d’écrire l’index de sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>Un fichier existe déjà à l’emplacement d’origine ; restauration annulée : %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>Déplacement vers le dossier de sauvegarde impossible : %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Modifié depuis l’analyse, conservé : %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>Le fichier à conserver a changé ; cette copie n’a pas été traitée : %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>Peut-être le même fichier que celui à conserver ; non traité : %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>Création du dossier de destination impossible : %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>La destination existe déjà : %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>Le chemin du lien existe déjà : %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>Droits insuffisants pour créer des liens symboliques (activez le mode développeur ou exécutez le programme en tant qu’administrateur) : %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>Suppression impossible : %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>Le dossier n’est plus vide ou ne peut pas être supprimé : %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>Déplacement impossible : %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>Copie impossible : %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>Création du lien physique impossible : %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>Création du lien symbolique impossible : %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Fichier introuvable : %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>La cible du lien n’est pas un fichier utilisable : %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>Le fichier n’a pas pu être remis en place ; il peut être restauré depuis la sauvegarde : %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>Mise à la Corbeille impossible ; fichier conservé : %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>Impossible d’écrire le journal du nettoyage : %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Un autre programme utilise le journal du nettoyage : %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>Le journal du nettoyage est endommagé ; seule sa partie intacte a été lue : %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>Impossible de lire le journal du nettoyage (endommagé ou d’un autre ordinateur) : %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>Impossible à recréer ; son contenu n’a pas été comparé au fichier à conserver : %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>Impossible à recréer ; le fichier à conserver a disparu ou a changé : %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>N’est plus dans la Corbeille ; restauration impossible : %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>N’est plus là ou a changé ; non restauré : %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>Le dossier ou le lecteur est absent ; non restauré : %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Restauré, mais le lien n’a pas pu être supprimé : %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Restauré, mais la date ou les permissions n’ont pas pu être rétablies : %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Échec de la mise à la Corbeille (code %1, fichiers : %2)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>Non mis à la Corbeille, toujours à sa place : %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Conserver le plus récent</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Conserver le plus ancien</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Conserver le chemin le moins profond</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Conserver le chemin le plus profond</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Choisir le dossier de sauvegarde</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Options avancées (règle de conservation, sauvegarde…)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Règle de conservation</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Ignorer les fichiers cachés</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Exclure les dossiers système</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Sauvegarder avant de supprimer</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Dossier de sauvegarde</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Disques et partitions à analyser</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Cochez les partitions à ajouter à la liste d’analyse (l’analyse ne démarre pas encore).
Les dossiers système restent exclus. Évitez si possible d’analyser tout le disque système.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Ajouter à la liste d’analyse</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>Aucun disque coché.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>Analyser le disque système ?</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>Vous avez coché un disque système. L’analyse d’un disque entier est plus longue ; les dossiers système restent exclus.
L’ajouter à la liste d’analyse ?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Confirmer l’ajout</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Partitions à ajouter à la liste d’analyse (sans lancer l’analyse) : %1
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>Aucun disque ni aucune partition à analyser.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Choisir un dossier à exclure</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Dossiers exclus</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Exclure</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Choisir un dossier à ne pas parcourir lors des analyses</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>Retirer les dossiers sélectionnés de la liste des dossiers exclus</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Parcourir les dossiers</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Parcourez les dossiers, puis ajoutez-les aux emplacements d’analyse avec le bouton → à droite ;
vous pouvez aussi faire glisser des dossiers depuis l’Explorateur vers la liste d’analyse.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Ajouter les dossiers sélectionnés aux emplacements d’analyse</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Choisir un dossier à analyser</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>Un emplacement par ligne ; État = activé/désactivé, Protégé = non analysé.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Dossier</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Disque</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Choisir un dossier à ajouter aux emplacements d’analyse</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Inclus</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Protégé</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>Non protégé</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Oui</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 Non</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>État</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Sous-dossiers</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Rechercher les doublons</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Afficher les fichiers restants</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Doublons</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Même nom de fichier</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 Fichiers vides</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
Ce dossier est introuvable pour le moment.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Emplacements d’analyse</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Accès rapide</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Disque local (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Analyse en cours ; actions groupées suspendues.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>L’onglet « Dossiers en double » est en lecture seule ; supprimez ou exportez depuis l’onglet « Fichiers en double ».</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>L’onglet « Fichiers restants » est en lecture seule ; cochez les fichiers dans l’onglet « Fichiers en double ».</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>Après l’analyse, cochez les doublons à gauche, puis choisissez une action groupée.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>Fichiers cochés : %1</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Groupe de dossiers n° %1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>Nombre de fichiers</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Capacité inconnue</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 libres</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·Disque système</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>Le fichier n’existe plus ou n’est pas accessible</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>Image trop grande pour l’aperçu</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>Impossible de lire cette image</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>Fichier / groupe</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Groupe n° %1  (fichiers : %2, récupérable : %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>Tous les fichiers de ce groupe sont cochés ; aucun ne sera conservé.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Chemin : %1
Taille : %2
Modifié le : %3
Extension : %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Dimensions : %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Appareil photo : %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Prise de vue : %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Artiste : %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Titre : %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>Mode général</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Mode image</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>Mode audio</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>Mode vidéo</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>Correspondance exacte</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Correspondance très proche</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Correspondance approchée</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Ressemblance</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Similarité faible</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Empreinte par échantillons (hachage en plusieurs points)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Approchée (échantillon de début, ≈2 min)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Approchée (échantillon de début, ≈30 s)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Hachage exact du fichier entier</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Par étiquettes uniquement</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Hachage du début</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Hachage du fichier entier en plusieurs points (plus lent)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Afficher seulement</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Doit correspondre</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>Sans limite</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Similarité des images : %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Variantes : %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Correspondance : contenu identique (octet par octet)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Correspondance : contenu similaire (échantillons identiques ≥ %1 %)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Correspondance : contenu ignoré (règles de nom, taille, date)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Comparaison audio : %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Comparaison vidéo : %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Emplacements d’analyse : %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … et %1 de plus</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Dossiers exclus : %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Limites de taille : %1 – %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Extensions incluses : %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Extensions exclues : %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>Fichiers cachés</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>Dossiers système</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Ignorer : %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Vérifiez les paramètres de l’analyse :</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Mode : %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>L’analyse est locale ; aucun fichier n’est envoyé sur le réseau.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>Sensibilité ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>Temps de pose</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Parolier</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Réalisateur</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Actions groupées</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Cocher selon la règle</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Cocher tous les doublons</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Inverser les coches</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Vider les résultats</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>Déplacer vers la sauvegarde</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Supprimer les fichiers cochés</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>Aperçu du fichier</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Sélectionnez un fichier pour en voir l’aperçu</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Dossier : %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>Pas d’aperçu d’image
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Ouvrir dans l’Explorateur</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Ouvrir le dossier du fichier</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Copier le chemin du dossier</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>Aucune analyse pour l’instant. Choisissez un mode, ajoutez des dossiers, puis cliquez sur « Lancer l’analyse ».</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>Affichage :</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Miniatures</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>Fichiers en double</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Dossiers en double</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Fichiers restants / uniques</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Tout développer</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Tout réduire</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Comparer les images (en sélectionner 2)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Cocher tous les doublons du groupe</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Correspondance des fichiers audio</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>L’empreinte audio repose sur des échantillons ; elle n’a pas la précision de Chromaprint.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Étiquettes audio</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Extensions</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Utiliser les extensions du mode actuel</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>Coché : l’analyse porte sur les extensions du mode actuel ; décoché : seulement sur celles de la liste « Inclus ».</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Exclus</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>Par exemple : jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Séparées par des virgules, des points-virgules ou des espaces ; * ou *.* signifie toutes</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>Plus de formats RAW en mode image</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>En mode image, analyser aussi les fichiers RAW d’appareils photo tels que arw, dng, rw2, orf et srw ;
raw, cr2 et nef sont toujours analysés. Valable seulement si la liste « Inclus » est vide.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Toutes les tailles</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Toutes les dates</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>À partir de ce jour</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Jusqu’à ce jour inclus</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>Autres critères de doublon</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Comparaison du contenu</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Contenu identique</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Contenu similaire</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Ignorer le contenu</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Modes exclusifs :
• Contenu identique = octet par octet (par défaut)
• Contenu similaire = comparaison approchée des octets
• Ignorer le contenu = règles de métadonnées uniquement</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Part minimale d’échantillons identiques</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>Ne lit pas le contenu des fichiers ; regroupe selon les critères de doublon ci-dessous (nom, taille, date).</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Même nom de fichier</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Même extension</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Noms de fichiers similaires</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>Ignorer « Copy », « (2) », etc. dans les noms de fichiers</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>toutes les langues</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Ignore aussi ce que les systèmes et gestionnaires de fichiers dans d’autres langues ajoutent au nom des copies, par exemple « - Kopie » ou « (otra copia) »</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Même taille de fichier</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Unité de tolérance</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Même date de création</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Date seulement</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Même date de modification</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Même disque</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Dossiers et chemins</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Même nom de dossier</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Même chemin complet</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Même profondeur de dossier</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Même chemin sous l’emplacement d’analyse</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Ignorer les groupes de doublons d’un même dossier</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Options de comparaison de texte</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Tolérance de similarité du texte</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>Nombre de caractères pouvant différer entre noms de fichiers similaires</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Correspondance des images</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Utiliser le JPEG intégré des fichiers RAW (plus rapide)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Utiliser le cache des caractéristiques d’images</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Étiquettes d’image</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Précision</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Similarité des images</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Contraintes de dimensions</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Mêmes dimensions</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Proportions</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Mêmes proportions</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Transformations</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Trouver les images pivotées</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Trouver les images en miroir</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Exiger aussi la même répartition des couleurs</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Regroupement par heure</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Regrouper par heure de prise de vue</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Écart maximal entre les prises de vue</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Regroupement par GPS</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Regrouper par position GPS</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Distance maximale entre les lieux</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Méthode de comparaison</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>Pour comparer par étiquettes uniquement, réglez au moins une étiquette sur « Doit correspondre »</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Même durée</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Ignorer les liens physiques vers le même fichier</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>Un lien physique est un autre nom des mêmes données ; le supprimer ne libère pas d’espace.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Correspondance</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Coché = étiquettes comparées ; décoché = étiquettes de ce groupe ignorées</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Ajouter</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Correspondance des vidéos</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Comparaison approchée par échantillons d’octets, et non image par image.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Heures:minutes:secondes.millisecondes</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Étiquettes vidéo</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>Fichiers copiés : %1</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>Impossible d’écrire le fichier.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>Impossible d’écrire le script.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Format d’export inconnu.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>Un script de commandes ne peut pas désigner exactement ce fichier ; écrit en commentaire : %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Rapport d’analyse des doublons Mirrix</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Généré le : %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Mode d’analyse : %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Portée : fichiers cochés uniquement</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Remarque : chemins anonymisés (nom d’utilisateur masqué)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Groupe %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Clé : %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (fichiers : %1)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Échecs :
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>Fichiers cochés automatiquement selon la règle</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Doublons cochés dans chaque groupe (le premier est conservé par défaut)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Coches inversées</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Mise à jour des coches…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Arrêté ; les autres fichiers n’ont pas été traités</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Cochez d’abord les fichiers à traiter.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Déplacer les fichiers (%1) vers le dossier de sauvegarde :
%2
Continuer ?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Confirmer le déplacement vers la sauvegarde</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>Déplacement vers la sauvegarde… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>Fichiers déplacés vers la sauvegarde : %1. %2
Relancez l’analyse pour actualiser.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Cochez d’abord les fichiers à supprimer.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Sauvegarde et suppression… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Avertissement de sauvegarde</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>Certains fichiers n’ont pas pu être sauvegardés :
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>Fichiers sauvegardés et supprimés : %1. Relancez l’analyse pour actualiser.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Confirmer la suppression définitive</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Fichiers à supprimer définitivement : %1. Cette action est irréversible. Continuer ?</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Suppression des fichiers… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Relancez l’analyse pour actualiser les résultats.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>Fichiers traités : %1. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Lecture de l’index de sauvegarde…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>L’index de sauvegarde est vide.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Confirmer la restauration</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>À restaurer :
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Restauration des fichiers… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>Fichiers restaurés : %1.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>Fichiers supprimés de nouveau : %1.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>Fichier restauré.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Recherche et nettoyage rapides et sûrs des fichiers en double. Modes : contenu général, images similaires, empreinte audio et miniatures vidéo.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Mode portable (données dans \Data, à côté du programme)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Mode standard (données dans le dossier AppData de l’utilisateur)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Version %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Dossier de données : %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Remerciements open source</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>Liste CSV (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Liste texte (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Copier les fichiers dans un dossier</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Créer un script de commandes (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Script de commandes (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Exporter les résultats de l’analyse</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Format d’export</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>L’exécution du script supprime tous les fichiers qu’il contient, y compris ceux à conserver ; pour ne supprimer que les fichiers cochés, activez « Exporter uniquement les fichiers cochés »</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Chemin de sortie :</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Exporter uniquement les fichiers cochés</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Inclure la clé de groupe et la date de modification</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Anonymiser les chemins (masquer le nom d’utilisateur)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>Un script anonymisé est destiné à la lecture : il ne supprime pas les fichiers dont le chemin masque le nom d’utilisateur</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>Traitement en cours</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>S’arrête après le fichier en cours</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>Placer dans la Corbeille</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>Déplacer vers un dossier</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Supprimer et créer un lien symbolique</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Supprimer et créer un lien physique</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Suppression de fichiers</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>Fichiers à traiter : %1. Choisissez le mode de suppression :</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Mode de suppression</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Dossier de destination :</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Cible du lien :</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>Fichier à conserver (pour les liens)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>Facultatif en cas de sauvegarde préalable : chaque lien pointe alors vers le fichier non coché de son groupe</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Sauvegarder avant de supprimer</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Outil de hachage - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Choisir des fichiers</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Choisir un dossier</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Recalculer</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Algorithme</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>L’ajout d’un dossier inclut les fichiers de tous ses sous-dossiers</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Valeur de hachage</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Vous pouvez déposer ici des fichiers ou des dossiers</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Choisir des fichiers</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Recherche de fichiers…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Calcul des hachages…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Copier la valeur de hachage</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Copier le nom du fichier</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Comparaison d’images</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>Fichier A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>Fichier B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>Le journal est vide.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>Entrées affichées : %1 sur %2</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Journal des opérations</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Filtrer le journal</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Copier la sélection</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Supprimer tout le cache de hachages et d’histogrammes d’images dans :
%1

La prochaine analyse d’images sera plus lente. Continuer ?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Vider le cache des caractéristiques d’images</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>Le cache des caractéristiques d’images a été vidé.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>Certains fichiers du cache n’ont pas pu être supprimés.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  Général</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Thème</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  À propos</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>Paramètres généraux</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>À la fermeture de la fenêtre principale</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>Réduire dans la zone de notification (recommandé)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Émettre un son à la fin de l’analyse</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Demander confirmation avant l’analyse</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>Si l’option est désactivée, « Lancer l’analyse » la démarre aussitôt ; vous pouvez aussi cocher « Ne plus afficher ce message » dans la confirmation.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Algorithme d’empreinte du contenu</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (par défaut, conserve le cache d’empreintes existant)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (plus rapide et plus robuste ; le cache est recréé après le changement)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Ne concerne que les hachages rapide et complet de la recherche de contenu identique ; l’échantillonnage de contenu similaire reste en MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Cache et données</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>Le cache des caractéristiques d’images accélère la recherche d’images en double. Emplacement :</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Efface les hachages perceptuels et les histogrammes en cache ; la prochaine analyse les recalculera</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Clair (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Sombre (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Utilise le style Qt Fusion. Appliqué immédiatement et enregistré.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Restaurer une sauvegarde</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>Fichiers à restaurer :</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Filtrer par chemin</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
Fichiers impossibles à remettre en place (%1) :
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
Fichiers impossibles à supprimer de nouveau (%1) :
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>Fichiers non supprimés : %1 (%2). Un lien n’est créé que si le chemin est libre. Pour remplacer les fichiers par des liens, sauvegardez d’abord.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>Fichiers à supprimer définitivement : %1 (%2). Ils ne vont pas dans la Corbeille et sont irrécupérables.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>Fichiers à supprimer définitivement : %1 (%2). Ils ne vont pas dans la Corbeille, mais peuvent être recréés à partir des fichiers conservés.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>Fichiers à placer dans la Corbeille : %1 (%2). L’espace n’est libéré que lorsqu’elle est vidée.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>Fichiers à déplacer vers le dossier de sauvegarde : %1 (%2). Rien n’est supprimé définitivement.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>Fichiers à déplacer vers le dossier de sauvegarde : %1 (%2). La Corbeille n’est pas utilisée.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>Fichiers à déplacer vers le dossier de sauvegarde : %1 (%2). Le dossier cible n’est pas utilisé.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>Fichiers à déplacer vers le dossier de sauvegarde : %1 (%2). Des liens les remplacent.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>Fichiers à déplacer vers le dossier cible : %1 (%2).</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Si la case n’est pas cochée, seuls des échantillons sont comparés avant la mise à la Corbeille, le déplacement et la sauvegarde ; avant la suppression définitive et la création de liens, tout le contenu l’est toujours</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Garder l’historique (jours) :</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Tout traiter</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>Contenu différent du fichier à conserver ; non traité : %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Détermine si « Sauvegarder avant de supprimer » est coché à l’ouverture de la boîte de suppression ; les fichiers sauvegardés vont dans le dossier de sauvegarde et ne sont pas supprimés</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Effacer les plus anciens</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Effacer l’entrée</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>Occupé dans la Corbeille : %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>Voir dans l’historique</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>Occupé par les sauvegardes : %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>Occupé dans le dossier de sauvegarde : %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Échec : %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>Entrées de l’historique à effacer : %1. Les fichiers ne sont pas touchés, mais ces nettoyages ne pourront plus être annulés ici. Continuer ?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>Fichiers à remettre en place : %1. Continuer ?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>Fichiers à supprimer de nouveau : %1 (%2). Continuer ?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>Les fichiers de ce nettoyage dans le dossier de sauvegarde (%1) seront supprimés définitivement et ne pourront plus être restaurés. Continuer ?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Interrompu</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Arrêté ; non traité : %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>Fichiers de sauvegarde supprimés : %1.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Remis en place</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Libéré</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>Libéré : %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>Propriétaire ou droits différents de ceux de la cible du lien ; non traité : %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Annulation de %1</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Annuler la sélection</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Annuler ce nettoyage</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Annuler le nettoyage</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Refaire le nettoyage</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>Le fichier est encore dans la Corbeille et peut en être restauré : %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>Le fichier existe. Le remplacer ?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>Fichiers / conservé</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>Fichier utilisé par un autre programme ; non traité : %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Méthode / emplacement</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>Impossible d’écrire le journal des opérations : %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>Impossible d’écrire l’historique du nettoyage ; aucun fichier traité : %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>Impossible de mettre à jour l’index de sauvegarde : %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>Impossible de garantir que le fichier à conserver est sur le disque ; non traité : %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>Résultat non enregistré</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Date / fichier</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>Entrées impossibles à effacer : %1.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>Groupes dont il ne resterait aucun fichier : %1.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Suppression des sauvegardes… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Vérification des fichiers… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Comparer tout le contenu avant chaque suppression</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Décocher un fichier par groupe</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>Aucun fichier conservé</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>Aucun fichier à remettre en place.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>Aucun fichier à supprimer de nouveau.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>Aucune entrée plus ancienne.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>Aucun nettoyage enregistré.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Historique des nettoyages</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Historique des nettoyages…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>Le dossier cible contient le fichier ; non traité : %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Lien physique</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Confirmer le remplacement</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>Placé dans la Corbeille</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Supprimer les dossiers vides</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>Déplacé vers un dossier</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Lien symbolique</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>Le fichier à conserver n’est plus là, ou c’est ce fichier par un autre chemin ; non traité : %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Annulé en partie</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Certains groupes ne correspondent pas par le contenu ; leurs fichiers ne sont pas comparés avant d’être supprimés.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>Libérer %1</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Libérer les sauvegardes</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Restaurer la sélection</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Copie des fichiers… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Export en cours… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>Échec de l’export.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Avertissement d’export</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Certains fichiers n’ont pas été exportés :
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>Fichiers copiés vers : %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Exporté : %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>Aucun résultat à exporter.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Indiquez le chemin de sortie.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… autres lignes : %1, voir les détails</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… autres lignes non affichées : %1</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>La cible du lien appartient à un autre groupe ; non traité : %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>Aucun fichier conservé à lier ; non traité : %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>Fichiers : %1</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>Fichiers : %1 en %2,%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Chemin : %1
Taille : %2 octets
Modifié le : %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS : %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Programme démarré</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Analyse démarrée</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Sauvegarde restaurée</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Dossiers vides à supprimer</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Dossiers vides supprimés</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Programme fermé</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Analyse terminée</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Cochés selon la règle</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>Déplacés vers la sauvegarde</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Sauvegardés et supprimés</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>Fichiers supprimés</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Copies exportées</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Restaurer une sauvegarde…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Résultats vidés. Ajustez les règles et relancez l’analyse.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Sélectionnez deux images du même groupe à comparer.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>Aucune entrée correspondante.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>Aucun fichier correspondant.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>Aucun emplacement à analyser.
Cliquez sur « + Dossier », choisissez à gauche, ou déposez ou collez des dossiers ici.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>Les résultats apparaîtront ici après une analyse.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>Aucun fichier en double trouvé.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>Aucun dossier en double trouvé.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>Aucun fichier restant n’est affiché.
Pour les voir, activez « Afficher les fichiers restants » pour un emplacement et relancez l’analyse.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>Le filtre ne change que ce que les listes affichent ; les coches et les actions groupées portent toujours sur tous les résultats.</translation>
    </message>
</context>
</TS>
